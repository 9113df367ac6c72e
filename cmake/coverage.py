#!/usr/bin/env python3
"""Prints which share of the lines and branches of each source has run, and fails where it is too small.

usage: llvm-cov export -summary-only ... | coverage.py SOURCE_DIR (FOLDER [PERCENT])...

A folder of which fewer lines than PERCENT ran fails.
"""

import json
import pathlib
import sys


def share(counts):
    return f"{100 * counts['covered'] / counts['count']:6.1f} %" if counts["count"] else "     - "


def summed(files, what):
    return {of: sum(file["summary"][what][of] for file in files) for of in ("count", "covered")}


def line(name, lines, branches):
    return f"{name:60} {share(lines)} of {lines['count']:5} lines {share(branches)} of {branches['count']:5} branches"


def report(folder, least, files):
    """Prints the table of these files, and tells whether enough of them has run."""
    for file in sorted(files, key=lambda file: file["summary"]["lines"]["percent"]):
        print(line(file["name"], file["summary"]["lines"], file["summary"]["branches"]))
    lines = summed(files, "lines")
    print(line(folder, lines, summed(files, "branches")))
    if not lines["count"] or 100 * lines["covered"] / lines["count"] < least:
        print(f"{folder}: at least {least} % of the lines should run")
        return False
    return True


def main(source_dir, *wanted):
    source_dir = pathlib.Path(source_dir).resolve()
    files = []
    for file in json.load(sys.stdin)["data"][0]["files"]:
        path = pathlib.Path(file["filename"]).resolve()
        if path.is_relative_to(source_dir):
            files.append({"name": str(path.relative_to(source_dir)), "summary": file["summary"]})
    enough = True
    for i, folder in enumerate(wanted):
        if not folder.isdigit():
            least = int(wanted[i + 1]) if i + 1 < len(wanted) and wanted[i + 1].isdigit() else 0
            enough &= report(folder, least, [file for file in files if file["name"].startswith(folder)])
    return 0 if enough else 1


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
