#!/usr/bin/env python3
"""Holds the includes to one direction.

usage: arrows.py SOURCE_DIR

ROOMS says what each room may include. A folder named `private` is for the room that it is in, and what is not ours is
free, but for Qt in a room that goes without. Every source below src/, platform/ and tools/ belongs to a room.
"""

import pathlib
import re
import sys

# The folder of a room, and those of the rooms besides itself whose headers it may include.
ROOMS = {
    "src/base": [],
    "platform": ["src/base"],
    "src/axes": ["src/base", "platform"],
    "src/items": ["src/base", "platform", "src/axes"],
    "src/config": ["src/base", "platform", "src/axes", "src/items"],
    "src/search": [],
    "tools/check": ["src/base", "platform", "src/axes", "src/items", "src/config"],
    "tools/document": ["src/base", "platform", "src/axes", "src/items", "src/config"],
    "tools/cluiconfig": ["src/base", "platform", "src/axes", "src/items", "src/config", "src/search", "tools/check",
                         "tools/document"],
    "tools/cluiedit": ["src/base", "platform", "src/axes", "src/items", "src/config", "src/search", "tools/check",
                       "tools/document"],
}
WITHOUT_QT = ["src/search"]
INCLUDE_PATHS = ["src", "platform", "tools"]

INCLUDE = re.compile(r'\s*#\s*include\s*([<"])([^>"]+)[>"]')


def room_of(path):
    return next((room for room in ROOMS if path.is_relative_to(room)), None)


def included(source_dir, path, quote, name):
    """The header of ours that the compiler takes, relative to the source folder."""
    folders = [path.parent] if quote == '"' else []
    for folder in folders + [pathlib.Path(include_path) for include_path in INCLUDE_PATHS]:
        header = (source_dir / folder / name).resolve()
        if header.is_file() and header.is_relative_to(source_dir):
            return header.relative_to(source_dir)
    return None


def wrong_arrows(source_dir, path):
    room = room_of(path)
    if not room:
        yield f"{path}:1: in none of the rooms that {pathlib.Path(__file__).name} lists"
        return
    lines = (source_dir / path).read_text(encoding="utf-8").splitlines()
    for number, line in enumerate(lines, 1):
        include = INCLUDE.match(line)
        if not include:
            continue
        header = included(source_dir, path, *include.groups())
        if header:
            target = room_of(header)
            if target != room and target not in ROOMS[room]:
                yield f"{path}:{number}: {room} -> {target or header.parent} ({header})"
            elif target != room and "private" in header.parts:
                yield f"{path}:{number}: {room} -> {header.parent}, which is for {target} alone ({header})"
        elif room in WITHOUT_QT and include[2].upper().startswith("Q"):
            yield f"{path}:{number}: {room} -> Qt ({include[2]})"


def main(source_dir):
    source_dir = pathlib.Path(source_dir).resolve()
    findings, looked_at = [], 0
    for folder in INCLUDE_PATHS:
        for path in sorted((source_dir / folder).rglob("*")):
            if path.suffix in (".h", ".cpp"):
                looked_at += 1
                findings += wrong_arrows(source_dir, path.relative_to(source_dir))
    if not looked_at:
        findings.append(f"{source_dir}: no sources")
    print(*findings, sep="\n", end="\n" if findings else "")
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
