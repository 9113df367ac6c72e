#!/usr/bin/env python3
"""Gives cluiconfig large documents, and a tenth of each: processor time and memory should grow in proportion.

usage: large.py DIRECTORY_OF_THE_PROGRAMS DOCUMENT [KIND...]

For each command: the exit code, seconds and megabytes with a tenth and with the whole, and how often as much the whole
takes. No process gets more than MOST_MEMORY.
"""

import json
import os
import resource
import subprocess
import sys
import tempfile

MOST_MEMORY = 16 << 30
COMMANDS = "check", "show", "format", "format --in-place", "diff"


def with_comment(shipped, name, value):
    return json.dumps({**shipped, name: value}, ensure_ascii=False, indent=1)


def entries(shipped, count):
    """Axes combinations, none of which are the same."""
    entry = shipped["Axes combinations"][0]
    names = ", ".join(json.dumps(each) for each in entry["X"])
    head = json.dumps({key: value for key, value in entry.items() if key != "X"}, ensure_ascii=False)[1:]
    text = json.dumps(shipped, ensure_ascii=False, indent=1)
    mark = '"Axes combinations": ['
    more = ",\n".join(f'{{"Comment": {i}, "X": [{names}], {head}' for i in range(count))
    return text.replace(mark, f"{mark}\n{more},", 1)


def lists(shipped, size):
    return with_comment(shipped, "Comment", [["x" * 60, 1.5, True, None]] * (size // 100))


# What is large, how large in all, and the document.
KINDS = {
    "200 MB": (200_000_000, lists),
    "one line of 100 MB": (100_000_000, lambda shipped, size: with_comment(shipped, "Comment", "x" * size)),
    "a million unknown keys": (1_000_000, lambda shipped, count: json.dumps(
        {**shipped, **{f"Comment {i}": i for i in range(count)}}, indent=1)),
    "100,000 entries": (100_000, entries),
    "a key of 10 MB": (10_000_000, lambda shipped, size: with_comment(shipped, "x" * size, 1)),
    "100,000 levels": (100_000, lambda shipped, depth: json.dumps(shipped)[:-1] + ', "Comment": ' + "[" * depth + "]" * depth + "}"),
}


def write(path, text, *arguments):
    """In a process of its own, whose memory would otherwise count for those that are started later."""
    if (child := os.fork()) == 0:
        with open(path, "w", encoding="utf-8") as file:
            file.write(text(*arguments))
        os._exit(0)
    if os.waitpid(child, 0)[1] != 0:
        sys.exit(f"cannot write {path}")


def measure(program, command, path, shipped):
    """Exit code, processor time in seconds and memory in megabytes."""
    arguments = [program, *command.split(), *([shipped] if command == "diff" else []), path]
    process = subprocess.Popen(arguments, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    _, status, usage = os.wait4(process.pid, 0)
    process.returncode = os.waitstatus_to_exitcode(status)
    return process.returncode, usage.ru_utime + usage.ru_stime, usage.ru_maxrss / 1000


def main(programs, document, *kinds):
    resource.setrlimit(resource.RLIMIT_AS, (MOST_MEMORY, MOST_MEMORY))
    program = os.path.join(programs, "cluiconfig")
    with open(document, encoding="utf-8") as file:
        shipped = json.load(file)
    for kind in kinds or KINDS:
        size, text = KINDS[kind]
        with tempfile.TemporaryDirectory() as directory:
            paths = [os.path.join(directory, name) for name in ("tenth.json", "whole.json")]
            for path, part in zip(paths, (size // 10, size)):
                write(path, text, shipped, part)
            print(f"{kind} ({os.path.getsize(paths[1]) / 1e6:.0f} MB)")
            for command in COMMANDS:
                (_, time, memory), (code, whole_time, whole_memory) = (
                    measure(program, command, path, document) for path in paths)
                print(f"  {command:18} {code:3} {time:8.2f} s {whole_time:8.2f} s {whole_time / time:6.1f}"
                      f" {memory:8.0f} MB {whole_memory:8.0f} MB {whole_memory / memory:6.1f}", flush=True)


if __name__ == "__main__":
    main(*sys.argv[1:])
