#!/usr/bin/env python3
"""Measures `cluiconfig search` against `fzf --filter` and `fzy -e`, as whole processes on a million names.

usage: processes.py DIRECTORY_OF_THE_PROGRAMS [BEGINNING_OF_ROWS]

Prints the table of docs/search.md. Wall time, processor time and memory are ours divided by those of fzy. The names are
a file that is standard input, the output is thrown away. The programs take turns, and the least of each figure counts.
"""

import os
import subprocess
import sys
import tempfile
import time

NAMES = 1_000_000
TURNS = 7
LISTS = {  # the lists of bench_search_names, and queries that few names match, some, most, and one that is a letter
    "technique": {"selective": "khz step o", "middling": "volt", "unselective": "charprotoc", "one letter": "e"},
    "path": {"selective": "cellsqx-z/", "middling": "data", "unselective": "batcellcyc", "one letter": "e"},
    "real path": {"selective": "libcmake", "middling": "name", "unselective": "/usr/", "one letter": "e"},
}
STRATEGIES = ("technique", "text")
LEAST_SPEED_UP_OVER_FZF = 4
MOST_OF_FZY = {"wall": 0.8, "processor": 1.0, "memory": 1.2}


def measured(command, path):
    with open(path, "rb") as names:
        start = time.perf_counter()
        process = subprocess.Popen(command, stdin=names, stdout=subprocess.DEVNULL)
        _, status, usage = os.wait4(process.pid, 0)
        wall = time.perf_counter() - start
    process.returncode = os.waitstatus_to_exitcode(status)
    if process.returncode != 0:
        sys.exit(f"{command} ended with {process.returncode}")
    return {"wall": wall, "processor": usage.ru_utime + usage.ru_stime, "memory": usage.ru_maxrss / 1024}


def least(commands, path):
    """The least of each figure, for each command."""
    turns = [{name: measured(command, path) for name, command in commands.items()} for _ in range(TURNS)]
    return {name: {figure: min(turn[name][figure] for turn in turns) for figure in MOST_OF_FZY}
            for name in commands}


def line(*cells):
    widths = (33, 7, 6, 7, 8, 5, 9, 6, 5)
    return "| " + " | ".join(cell.ljust(width) for cell, width in zip(cells, widths)) + " |"


def row(name, ours, fzf, fzy):
    speed_up = fzf["wall"] / ours["wall"]
    cells = [f"{speed_up:.1f}" + (" missed" if speed_up < LEAST_SPEED_UP_OVER_FZF else "")]
    for figure, most in MOST_OF_FZY.items():
        ratio = ours[figure] / fzy[figure]
        cells.append(f"{ratio:.2f}" + (" missed" if ratio > most else ""))
    return line(name, f"{ours['wall']:.3f} s", f"{fzf['wall']:.2f} s", f"{fzy['wall']:.3f} s", *cells,
                f"{ours['memory']:.0f} MB")


def main(programs, beginning=""):
    print(line("names, query, strategy", "ours", "fzf", "fzy", "fzf/ours", "wall", "processor", "memory", "ours"))
    print(line(*[""] * 9).replace(" ", "-"))
    most = (f"≤ {most}" for most in MOST_OF_FZY.values())
    print(line("wanted", "", "", "", f"≥ {LEAST_SPEED_UP_OVER_FZF}", *most, ""))
    for kind, queries in LISTS.items():
        wanted = {what: query for what, query in queries.items() if f"{kind}, {what}".startswith(beginning)}
        with tempfile.NamedTemporaryFile() as names:
            if wanted:
                subprocess.run([f"{programs}/bench_search_names", kind, str(NAMES)], stdout=names, check=True)
            for what, query in wanted.items():
                ours = {strategy: [f"{programs}/cluiconfig", "search", "--strategy", strategy, query]
                        for strategy in STRATEGIES}
                best = least({**ours, "fzf": ["fzf", "--filter", query], "fzy": ["fzy", "-e", query]}, names.name)
                for strategy in STRATEGIES:
                    print(row(f"{kind}, {what}, {strategy}", best[strategy], best["fzf"], best["fzy"]), flush=True)


if __name__ == "__main__":
    main(*sys.argv[1:])
