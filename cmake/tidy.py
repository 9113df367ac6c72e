#!/usr/bin/env python3
"""Runs clang-tidy over the sources of a build tree and fails if there is a finding.

usage: tidy.py SOURCE_DIR BUILD_DIR [--share I/N] [FOLDER...]

With folders of the source tree, over the sources below them; without, over all. With a share, over the I-th of N parts
of them, counted from 0. A source that several programs are made of is looked at as one of them compiles it.

A source whose text, headers, compiler options and checks are those of its last clean run is not looked at again, so
that a second run takes a second. Needs a Ninja build that has been built: Ninja knows which headers a source includes.
"""

import argparse
import concurrent.futures
import hashlib
import json
import os
import pathlib
import shlex
import subprocess
import sys


def dependencies(build_dir):
    """Maps each object file to the files that it was compiled from."""
    result, current = {}, None
    listing = subprocess.run(["ninja", "-C", build_dir, "-t", "deps"], capture_output=True, text=True, check=True)
    for line in listing.stdout.splitlines():
        if line.startswith("    "):
            result[current].append(line.strip())
        elif ": #deps" in line:
            current = line.split(": #deps")[0]
            result[current] = []
    return result


def for_clang(arguments):
    """Without what only GCC knows. clang cannot read the headers that GCC has precompiled and reads the original ones."""
    kept, i = [], 0
    while i < len(arguments):
        if arguments[i] == "-include" and "cmake_pch" in arguments[i + 1]:
            i += 2
            continue
        # A "-Wno-…" is for a mistake of GCC's.
        if arguments[i] not in ("-Winvalid-pch", "-fpch-preprocess") and not arguments[i].startswith("-Wno-"):
            kept.append(arguments[i])
        i += 1
    return kept


def is_in_share(path, share):
    number, of = map(int, share.split("/"))
    return int(hashlib.sha256(str(path).encode()).hexdigest(), 16) % of == number


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("source_dir", type=lambda name: pathlib.Path(name).resolve())
    parser.add_argument("build_dir", type=lambda name: pathlib.Path(name).resolve())
    parser.add_argument("--share", default="0/1")
    parser.add_argument("folders", nargs="*")
    options = parser.parse_args()
    source_dir, build_dir, folders = options.source_dir, options.build_dir, options.folders
    state_dir = build_dir / "tidy"
    state_dir.mkdir(exist_ok=True)

    common = hashlib.sha256()
    common.update(subprocess.run(["clang-tidy", "--version"], capture_output=True, check=True).stdout)

    depends = dependencies(build_dir)
    commands, todo, known = [], [], set()
    for entry in json.loads((build_dir / "compile_commands.json").read_text()):
        source = pathlib.Path(entry["file"])
        if not source.is_relative_to(source_dir) or source.is_relative_to(build_dir) or source.suffix != ".cpp":
            continue
        if folders and not any(source.is_relative_to(source_dir / folder) for folder in folders):
            continue
        if source in known or not is_in_share(source.relative_to(source_dir), options.share):
            continue
        known.add(source)
        arguments = for_clang(shlex.split(entry["command"]))
        # Headers that come through a precompiled one need not be listed with the object: they are the system's.
        commands.append({"directory": entry["directory"], "file": entry["file"], "arguments": arguments})

        key = common.copy()
        key.update("\0".join(arguments).encode())
        for folder in source.parents:
            if (folder / ".clang-tidy").exists():
                key.update((folder / ".clang-tidy").read_bytes())
        output = arguments[arguments.index("-o") + 1]
        for file in sorted({str(source), *depends.get(output, [])}):
            path = build_dir / file
            if path.is_relative_to(source_dir) and path.suffix in (".cpp", ".h"):
                key.update(path.read_bytes())
        stamp = state_dir / hashlib.sha256(output.encode()).hexdigest()
        if not stamp.exists() or stamp.read_text() != key.hexdigest():
            todo.append((source, stamp, key.hexdigest()))
    (state_dir / "compile_commands.json").write_text(json.dumps(commands))

    def check(job):
        source, stamp, key = job
        run = subprocess.run(["clang-tidy", "--quiet", "-p", str(state_dir), str(source)], capture_output=True, text=True)
        if run.returncode == 0:
            stamp.write_text(key)
        return source, run

    failed = 0
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for source, run in pool.map(check, todo):
            if run.returncode != 0:
                failed += 1
                print(run.stdout, run.stderr, sep="\n", flush=True)
    print(f"{len(commands)} sources, {len(todo)} of them looked at, {failed} with findings")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
