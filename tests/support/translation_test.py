#!/usr/bin/env python3
"""Checks that translations are complete: every text of the sources, nothing else, with the same places.

usage: translation_test.py SOURCES TRANSLATION.ts...
"""

import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree

QT_PROGRAMS = ("/usr/lib/qt6/bin", "/usr/lib64/qt6/bin")


def find_lupdate():
    for directory in QT_PROGRAMS:
        found = shutil.which("lupdate", path=directory)
        if found:
            return found
    return shutil.which("lupdate6") or shutil.which("lupdate-qt6")


def messages(path):
    """What a translation file holds, as (context, source text, comment): translation element."""
    found = {}
    for context in xml.etree.ElementTree.parse(path).iter("context"):
        for message in context.iter("message"):
            key = (context.findtext("name"), message.findtext("source"), message.findtext("comment", ""))
            found[key] = message.find("translation")
    return found


def places(text):
    return sorted(set(re.findall(r"%L?\d+", text)))


def mistakes(lupdate, sources, translation):
    with tempfile.TemporaryDirectory() as directory:
        copy = pathlib.Path(directory, translation.name)
        shutil.copy(translation, copy)
        update = subprocess.run([lupdate, str(sources), "-extensions", "cpp,h", "-locations", "none", "-ts", str(copy)],
                                capture_output=True, text=True, check=False)
        if update.returncode != 0:
            return [f"lupdate: {update.stderr}"]
        updated = messages(copy)
    found = [f"lupdate: {line}" for line in update.stderr.splitlines()
             if "lacks Q_OBJECT" in line or "unknown namespace" in line]  # whose texts are looked for elsewhere
    known = messages(translation)
    for key, element in updated.items():
        context, source, _ = key
        where = f"{context}: {source!r}"
        state = element.get("type")
        text = element.text or ""
        if key not in known:
            found.append(f"{where} is new")
        elif state in ("vanished", "obsolete"):
            found.append(f"{where} has vanished")
        elif state == "unfinished" or not text:
            found.append(f"{where} is unfinished")
        elif places(source) != places(text):
            found.append(f"{where} has other places than {text!r}")
    return found


def main(sources, *translations):
    lupdate = find_lupdate()
    if lupdate is None:
        print("lupdate not found")
        return 77
    result = 0
    for translation in map(pathlib.Path, translations):
        for mistake in mistakes(lupdate, sources, translation):
            print(f"{translation.name}: {mistake}")
            result = 1
    return result


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
