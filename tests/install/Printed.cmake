# What the program in program/ prints.
set(printed "800 wide, 521 combinations, [0-9]+ of them over Test Time / s, 101 techniques")
