#!/usr/bin/env python3
"""Measures `cluiconfig check` against `cluiconfig show`, which loads the same document, as whole processes.

usage: check.py DIRECTORY_OF_THE_PROGRAMS DOCUMENT

The two take turns; the shortest wall time of each counts.
"""

import os
import subprocess
import sys
import time

TURNS = 20
MOST_TIME_OF_SHOW = 5


def seconds(*command):
    start = time.perf_counter()
    subprocess.run(command, stdout=subprocess.DEVNULL, check=True)
    return time.perf_counter() - start


def main(programs, document):
    program = os.path.join(programs, "cluiconfig")
    turns = [(seconds(program, "check", document), seconds(program, "show", document)) for _ in range(TURNS)]
    check, show = (min(times) for times in zip(*turns))
    print(f"cluiconfig check / show of {os.path.basename(document)}: {check * 1000:.1f} ms / {show * 1000:.1f} ms = "
          f"{check / show:.2f}, target {MOST_TIME_OF_SHOW}{'' if check <= MOST_TIME_OF_SHOW * show else '  missed'}")


if __name__ == "__main__":
    main(*sys.argv[1:])
