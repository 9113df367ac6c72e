#!/usr/bin/env python3
"""Holds the interface of the libraries against its record, or writes the record.

usage: abi.py check|write SOURCE_DIRECTORY BUILD_DIRECTORY

The build directory has the libraries as they are now. Exit code 77 where libclang's Python package is missing.

The record of version 1.x.y stands in abi/1/, a file for each library. README.md beside this file says what is in it.
"""

import pathlib
import re
import sys

import compare

SKIPPED = 77

HEADING = "# What programs that are built for {library} {major} rely on, by scripts/abi: see abi/README.md."


def version(build_dir):
    cache = (build_dir / "CMakeCache.txt").read_text(encoding="utf-8")
    return re.search(r"^CMAKE_PROJECT_VERSION:STATIC=(.*)$", cache, re.MULTILINE)[1]


def says_what_breaks(changelog, major):
    """Whether the changelog has a version MAJOR in which something was changed or removed."""
    sections = re.split(r"^## ", changelog, flags=re.MULTILINE)
    return any(section.startswith(f"{major}.") and re.search(r"^### (Changed|Removed)\n+- ", section, re.MULTILINE)
               for section in sections)


class Record:
    def __init__(self, source_dir, major, library):
        self.name = f"abi/{major}/{library}.txt"
        self.path = source_dir / self.name

    def exists(self):
        return self.path.exists()

    def compare(self, current):
        return compare.compare(self.path.read_text(encoding="utf-8"), current, self.name)


def check(source_dir, major, interfaces):
    breaks, additions = [], []
    for library, current in interfaces.items():
        record = Record(source_dir, major, library)
        if record.exists():
            differences = record.compare(current)
            breaks += differences.breaks
            additions += differences.additions
        else:
            additions.append(f"'{record.name}' is missing")
    if breaks:
        print(f"A program that was built for an earlier version {major}.x may not work with this any more:", *breaks,
              "Take it back, or add beside what is there. If it must be, begin a new major version: set it in "
              f'CMakeLists.txt, say in CHANGELOG.md, under "## {major + 1}.0.0", what is changed or removed, and '
              "record the interface: scripts/abi", sep="\n")
    elif additions:
        print("New in the interface, and not recorded:", *additions, "Record it: scripts/abi", sep="\n")
    return 1 if breaks or additions else 0


def write(source_dir, major, interfaces):
    texts = {}
    for library, current in interfaces.items():
        record, before = Record(source_dir, major, library), Record(source_dir, major - 1, library)
        if record.exists():
            breaks = record.compare(current).breaks
            if breaks:
                print("Not recorded, since a program that was built for an earlier version "
                      f"{major}.x may not work with this any more:", *breaks, sep="\n")
                return 1
        elif before.exists():
            breaks = before.compare(current).breaks
            changelog = (source_dir / "CHANGELOG.md").read_text(encoding="utf-8")
            if breaks and not says_what_breaks(changelog, major):
                print(f"Not recorded, since programs that were built for version {major - 1} may not work with this, "
                      f'and CHANGELOG.md does not say so. Say it under "## {major}.…", "### Changed" or "### Removed":',
                      *breaks, sep="\n")
                return 1
        texts[record.path] = compare.text_of(current, HEADING.format(library=library, major=major))
    for path, text in texts.items():
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")
    return 0


def main(command, source_dir, build_dir):
    try:
        import interface  # noqa: PLC0415: needs a package that not every machine has
    except ImportError as error:
        print(f"{error}: the package python3-clang-14 has it")
        return SKIPPED
    source_dir, build_dir = pathlib.Path(source_dir).resolve(), pathlib.Path(build_dir).resolve()
    major = int(version(build_dir).split(".")[0])
    return {"check": check, "write": write}[command](source_dir, major, interface.read(source_dir, build_dir))


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
