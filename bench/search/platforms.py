#!/usr/bin/env python3
"""Compares the times of bench_search_times on two platforms, search by search.

usage: platforms.py PROGRAM OTHER_PROGRAM [ARGUMENT...]

The two take turns; the shortest time of each search counts. Both must find the same number of names.
"""

import math
import subprocess
import sys

ROUNDS = 3


def times(command):
    """Maps each search, and how many names it found, to nanoseconds a name."""
    lines = subprocess.run(command, capture_output=True, text=True, check=True).stdout.splitlines()
    return {tuple(line.split("\t")[:-1]): float(line.split("\t")[-1]) for line in lines}


def main(program, other):
    best = [{}, {}]
    for _ in range(ROUNDS):
        for result, command in zip(best, ([program], other)):
            for search, time in times(command).items():
                result[search] = min(time, result.get(search, math.inf))
    here, there = best
    if here.keys() != there.keys():
        sys.exit("The two do not find the same: " + str(sorted(here.keys() ^ there.keys())))

    print(f"{'names':<16} {'query':<34} {'strategy':<10} {'matches':>7} {'ns/name':>8} {'other':>8} {'ratio':>6}")
    ratios = []
    for (names, query, strategy, found), time in here.items():
        ratios.append(there[names, query, strategy, found] / time)
        print(f"{names:<16} {query:<34} {strategy:<10} {found:>7} {time:>8.1f} "
              f"{there[names, query, strategy, found]:>8.1f} {ratios[-1]:>6.2f}")
    mean = math.exp(sum(math.log(ratio) for ratio in ratios) / len(ratios))
    print(f"ratios: {min(ratios):.2f} to {max(ratios):.2f}, geometric mean {mean:.2f}")


if __name__ == "__main__":
    main(sys.argv[1], sys.argv[2:])
