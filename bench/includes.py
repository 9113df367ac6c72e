#!/usr/bin/env python3
"""Prints what it costs to compile a source that includes config/UIConfig.h and nothing else, in several ways.

usage: includes.py BUILD_DIR [TURNS]

Takes the compiler and its options from the build tree. The ways take turns; the medians are printed.
"""

import json
import os
import pathlib
import shlex
import statistics
import subprocess
import sys
import tempfile

SOURCE = "src/config/UIConfig.cpp"
HEADER = "#include <config/UIConfig.h>\n"


def options_of(build_dir):
    """The compiler and its options for a source of the library, without ccache, the source, its object and its header."""
    for entry in json.loads((build_dir / "compile_commands.json").read_text(encoding="utf-8")):
        if entry["file"].endswith(SOURCE):
            words = shlex.split(entry["command"])
            first = next(i for i, word in enumerate(words) if "++" in pathlib.Path(word).name)
            words = words[first:words.index("-o")]
            for option in ("-Winvalid-pch", "-fpch-preprocess"):
                if option in words:
                    words.remove(option)
            if "-include" in words:
                del words[words.index("-include"):words.index("-include") + 2]
            return words, entry["directory"]
    raise SystemExit(f"{build_dir}: no command for {SOURCE}")


def compile_one(command, directory):
    """Processor seconds, and the most memory in MB."""
    process = subprocess.Popen(command, cwd=directory)
    _, status, usage = os.wait4(process.pid, 0)
    if status:
        raise SystemExit(f"failed: {shlex.join(command)}")
    return usage.ru_utime + usage.ru_stime, usage.ru_maxrss / 1024


def main(build_dir, turns="7"):
    options, directory = options_of(pathlib.Path(build_dir).resolve())
    lean = "-DCLCONFIGUI_LEAN_INCLUDES"
    with tempfile.TemporaryDirectory() as temporary:
        temporary = pathlib.Path(temporary)
        source = temporary / "source.cpp"
        source.write_text(HEADER, encoding="utf-8")
        bare = temporary / "bare.cpp"
        bare.write_text("#include <QColor>\n#include <QJsonObject>\n#include <QMap>\n", encoding="utf-8")
        ways = {"as it is": [str(source)], "with `CLCONFIGUI_LEAN_INCLUDES`": [lean, str(source)]}
        making = {}
        for name, also, extra in (("plain", "", []), ("lean", ", with both", [lean])):
            header = temporary / f"{name}.h"
            header.write_text(HEADER, encoding="utf-8")
            making[f"making the precompiled header{also}"] = [*options, *extra, "-x", "c++-header", str(header), "-o",
                                                              f"{header}.gch"]
            ways["with both" if extra else "with a precompiled header"] = [*extra, "-include", str(header), str(source)]
        ways["`<QColor>`, `<QJsonObject>` and `<QMap>` instead"] = [str(bare)]
        commands = {**making, **{way: [*options, "-c", *words, "-o", os.devnull] for way, words in ways.items()}}
        costs = {way: [] for way in commands}
        for _ in range(int(turns)):
            for way, command in commands.items():
                costs[way].append(compile_one(command, directory))
    print("| A source that includes `<config/UIConfig.h>` | Processor time | Memory |\n|---|---|---|")
    for way in [*ways, *making]:
        seconds, megabytes = (statistics.median(column) for column in zip(*costs[way]))
        print(f"| {way} | {seconds:.2f} s | {megabytes:.0f} MB |")


if __name__ == "__main__":
    main(*sys.argv[1:])
