#!/usr/bin/env python3
"""Holds the documents to lines of 120 columns, and the changelog to the version of the project.

usage: docs.py VERSION CHANGELOG DOCUMENT...

Rows of tables and what stands between ``` may be longer: the one cannot be broken, the other is what a program prints.
"""

import pathlib
import re
import sys

MOST_COLUMNS = 120


def long_lines(path):
    fenced = False
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        if line.lstrip().startswith("```"):
            fenced = not fenced
        elif not fenced and not line.startswith("|") and len(line) > MOST_COLUMNS:
            yield f"{path}:{number}: {len(line)} columns, {MOST_COLUMNS} at most"


def wrong_version(path, version):
    """The newest version stands first, below what is not released yet."""
    newest = re.search(r"^## (\d\S*)", path.read_text(encoding="utf-8"), re.MULTILINE)
    if not newest or newest[1] != version:
        yield f"{path}: the newest version is {newest[1] if newest else 'missing'}, that of the project {version}"


def main(version, changelog, *documents):
    findings = list(wrong_version(pathlib.Path(changelog), version))
    for document in documents:
        findings += long_lines(pathlib.Path(document))
    print(*findings, sep="\n", end="\n" if findings else "")
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
