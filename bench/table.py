#!/usr/bin/env python3
"""Prints the figures of the benchmark programs with their targets beside them.

usage: table.py RESULT.json...

Every figure is a ratio of two measurements of the same run, so that it can be compared between machines. A row without
a target says what the row above leaves out.
"""

import json
import re
import sys


def read(paths):
    """Maps each benchmark's name to its result; of repeated ones the fastest counts."""
    results = {}
    for path in paths:
        for result in json.load(open(path))["benchmarks"]:
            name = re.sub(r"/(manual_time|real_time|process_time|iterations:[0-9]+)", "", result["name"])
            if name not in results or result["real_time"] < results[name]["real_time"]:
                results[name] = result
    return results


def time(result):
    return result["cpu_time"] * {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}[result["time_unit"]]


def rows(results):
    def sized(name, size):
        return results.get(f"{name}/{size}")

    for size in (1, 10, 100):
        if result := sized("load", size):
            what = "the shipped document" if size == 1 else f"a document {size} times as long"
            yield f"load of {what} ({result['bytes'] / 1000:.0f} kB) / bare parse of its bytes", result["load/parse"], 1.5
    for name in ("getAxesCombination/hit", "getAxesCombination/miss", "isRepresentationValid"):
        if (few := sized(name, 100)) and (many := sized(name, 100000)):
            yield f"{name} at 100,000 records / at 100 ({time(few):.0f} ns)", time(many) / time(few), 2
    name = "getAxesCombination/every record"
    if (few := sized(name, 100)) and (many := sized(name, 100000)):
        yield "the same, each record asked for once, in random order", time(many) / time(few), None
    for caches, target in (("empty caches", 12), ("again and again", None)):
        for name in ("removeDuplicates", "read", "write"):
            for size in (100, 1000, 10000):
                if (few := sized(f"{name}/{caches}", size)) and (many := sized(f"{name}/{caches}", size * 10)):
                    figure = many["fastest_us"] / few["fastest_us"]
                    yield f"{name} of {size * 10:,} records / of {size:,}, {caches}", figure, target
    # The list of Y names is made for the caller; the other results take no memory of their own.
    for name, own in (("getAxesCombination/hit", 0), ("isRepresentationValid", 0), ("getXAxesNames", 0), ("getYAxesNames", 1)):
        if result := sized(name, 100000):
            allocations = result["allocations"] - own
            yield f"{name} at 100,000 records ({time(result):.0f} ns): allocations beyond the result", allocations, 0


def main(paths):
    print(f"{'figure':<88} {'ratio':>8} {'target':>7}")
    for what, figure, target in rows(read(paths)):
        verdict = " missed" if target is not None and figure > target else ""
        print(f"{what:<88} {figure:>8.2f} {'' if target is None else target:>7}{verdict}")


if __name__ == "__main__":
    main(sys.argv[1:])
