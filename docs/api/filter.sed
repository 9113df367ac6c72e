#!/usr/bin/sed -Ef
# Copies and moves, and destructors.
s/^ +(\w+)\((const \1&|\1&&)( \w+)?\)( noexcept)?( = (default|delete))?;$//
s/^ +\w+& operator=\((const \w+&|\w+&&)( \w+)?\)( noexcept)?( = (default|delete))?;$//
s/^ +(virtual )?~\w+\(\)( override)?( = default)?;$//
# What several members have in common is the description of the first, not of the brace.
s,^( *)/// \\\{$,\1/**\\{*/,
# The picture of the rooms.
s/^## The rooms$/&\n\n\\dotfile rooms.dot "Who includes whom; what follows from other arrows is left out"/
