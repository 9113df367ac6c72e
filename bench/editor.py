#!/usr/bin/env python3
"""Compares the start of the editor with that of an empty window, the two in turns, and prints what a key stroke costs.

usage: editor.py BIN_DIR
"""

import os
import subprocess
import sys
import time

RUNS = 15
TARGET = 4.0


def start(program, window):
    before, wall = os.times(), time.perf_counter()
    subprocess.run([program, window], check=True, stderr=subprocess.DEVNULL)
    after = os.times()
    processor = (after.children_user + after.children_system) - (before.children_user + before.children_system)
    return time.perf_counter() - wall, processor


def main(bin_dir):
    program = os.path.join(bin_dir, "bench_editor")
    walls, processors = {}, {}
    for _ in range(RUNS):
        for window in ("--bare", "--window"):
            wall, processor = start(program, window)
            walls[window] = min(wall, walls.get(window, wall))
            processors[window] = min(processor, processors.get(window, processor))
    print(f"start until all is shown, offscreen, least of {RUNS}: empty window {walls['--bare'] * 1e3:.0f} ms, "
          f"cluiedit {walls['--window'] * 1e3:.0f} ms: {walls['--window'] / walls['--bare']:.2f} times (target: {TARGET:.0f}); "
          f"processor time {processors['--bare'] * 1e3:.0f} ms and {processors['--window'] * 1e3:.0f} ms")
    subprocess.run([program], check=True, stderr=subprocess.DEVNULL)


if __name__ == "__main__":
    main(*sys.argv[1:])
