#!/usr/bin/env python3
"""Prints the figures of bench_search as the tables of docs/search.md.

usage: table.py RESULT.json

A ratio is that of two measurements that took turns, so that it can be compared between machines.
"""

import json
import sys

KINDS = ["few, by a rare letter", "few, by order", "some", "most"]
TARGETS = {0: 0.7, 1: 0.7, 3: 3.0}


def cell(ratio, target):
    return f"**{ratio:.2f}**" if target and round(ratio, 2) > target else f"{ratio:.2f}"


def main(path):
    results = {}
    for result in json.load(open(path))["benchmarks"]:
        what, names, query = result["name"].removesuffix("/manual_time").split("|")
        results[what, names, query] = result

    row = "| {:<10} | {:<34} | {:<21} | {:>5} | {:>6} | {:>9} | {:>8} |".format
    print(row("names", "query", "which match", "match", "target", "technique", "text"))
    print(row("", "", "", "", "", "", "").replace(" ", "-"))
    for (what, names, query), technique in results.items():
        if what == "technique":
            text, target = results["text", names, query], TARGETS.get(technique["kind"])
            print(row(names, f"`{query}`", KINDS[int(technique["kind"])], f"{text['percent']:.0f} %", target or "",
                      cell(technique["ratio"], target), cell(text["ratio"], target)))

    print()
    row = "| {:<18} | {:<9} | {:>12} | {:>9} | {:>5} |".format
    print(row("typed", "strategy", "from scratch", "narrowing", "ratio"))
    print(row("", "", "", "", "").replace(" ", "-"))
    for (what, strategy, word), result in results.items():
        if what == "typing":
            print(row(f"`{word}`", strategy, f"{result['scratch_ms']:.1f} ms", f"{result['narrowed_ms']:.1f} ms",
                      f"{result['ratio']:.2f}"))

    print()
    for strategy in ("technique", "text"):
        pairs = [(results[strategy, names, query], result) for (what, names, query), result in results.items()
                 if what == f"literal {strategy}"]
        ours, literal = zip(*((our["ns_per_name"], result["ns_per_name"]) for our, result in pairs))
        print(f"{strategy} strategy, where most match: {min(ours):.0f} to {max(ours):.0f} ns a name, "
              f"the literal version {min(literal):.0f} to {max(literal):.0f} ns")


if __name__ == "__main__":
    main(sys.argv[1])
