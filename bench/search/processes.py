#!/usr/bin/env python3
"""Measures `cluiconfig search` against `fzf --filter` and `fzy -e`, as whole processes on a million names.

usage: processes.py DIRECTORY_OF_THE_PROGRAMS

The programs take turns; the shortest wall time of each counts. The queries are those of the benchmark, one that few
names match and one that most do.
"""

import os
import subprocess
import sys
import tempfile
import time

NAMES = 1_000_000
TURNS = 7
QUERIES = {
    "technique": (("selective", "khz step o"), ("unselective", "charprotoc")),
    "path": (("selective", "cellsqx-z/"), ("unselective", "batcellcyc")),
}
LEAST_SPEED_UP_OVER_FZF = 3
MOST_TIME_OF_FZY = 1.5


def seconds(command, path):
    with open(path, "rb") as names:
        start = time.perf_counter()
        subprocess.run(command, stdin=names, stdout=subprocess.DEVNULL, check=True)
        return time.perf_counter() - start


def main(programs):
    print(f"{'query':<42} {'cluiconfig':>10} {'fzf':>7} {'fzy':>7}   {'fzf/ours':>8} {'ours/fzy':>8}")
    for kind, queries in QUERIES.items():
        with tempfile.NamedTemporaryFile() as names:
            subprocess.run([os.path.join(programs, "bench_search_names"), kind, str(NAMES)], stdout=names, check=True)
            for what, query in queries:
                for strategy in ("technique", "text"):
                    commands = {
                        "ours": [os.path.join(programs, "cluiconfig"), "search", "--strategy", strategy, query],
                        "fzf": ["fzf", "--filter", query],
                        "fzy": ["fzy", "-e", query],
                    }
                    best = {name: float("inf") for name in commands}
                    for _ in range(TURNS):
                        for name, command in commands.items():
                            best[name] = min(best[name], seconds(command, names.name))
                    faster, slower = best["fzf"] / best["ours"], best["ours"] / best["fzy"]
                    missed = "" if faster >= LEAST_SPEED_UP_OVER_FZF and slower <= MOST_TIME_OF_FZY else "  missed"
                    print(f"{kind + ', ' + what + ', ' + strategy:<42} {best['ours']:>8.3f} s {best['fzf']:>5.2f} s "
                          f"{best['fzy']:>5.2f} s   {faster:>8.1f} {slower:>8.2f}{missed}")
    print(f"targets: fzf/ours at least {LEAST_SPEED_UP_OVER_FZF}, ours/fzy at most {MOST_TIME_OF_FZY}")


if __name__ == "__main__":
    main(sys.argv[1])
