#!/usr/bin/env python3
"""Holds the sources to one way of writing the texts that Qt takes.

usage: literals.py SOURCE_DIR FOLDER...

A source writes u"..."_s for a QString and "..."_L1 for a view of Latin-1. A header writes QStringLiteral("...") and
QLatin1StringView("..."), because the others need a using-directive, which whoever includes the header would get too.
"""

import pathlib
import re
import sys

IN_SOURCES = {
    r"\bQStringLiteral\(": 'QStringLiteral(...), write u"..."_s',
    r"\bQLatin1String\b": 'QLatin1String, write "..."_L1, and QLatin1StringView for the type',
    r'\bQLatin1StringView[({]"': 'QLatin1StringView("..."), write "..."_L1',
}
IN_HEADERS = {
    r"^using namespace\b": "a using-directive for everybody who includes this header",
    r"\bQLatin1String\b": "QLatin1String, write QLatin1StringView",
}


def findings_in(path):
    rules = IN_HEADERS if path.suffix == ".h" else IN_SOURCES
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        for pattern, finding in rules.items():
            if re.search(pattern, line):
                yield f"{path}:{number}: {finding}"


def main(source_dir, *folders):
    findings, looked_at = [], 0
    for folder in folders:
        for path in sorted(pathlib.Path(source_dir, folder).rglob("*")):
            if path.suffix in (".h", ".cpp"):
                looked_at += 1
                findings += findings_in(path)
    if not looked_at:
        findings.append(f"{source_dir}: no sources")
    print(*findings, sep="\n", end="\n" if findings else "")
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
