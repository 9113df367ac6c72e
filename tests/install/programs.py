#!/usr/bin/env python3
"""Builds the programs of a page against the installed package, runs them, and compares what they print with the page.

usage: programs.py PAGE PREFIX SETTINGS GENERATOR

A block of C++ or CMake is the file whose name stands in the last line before it, main.cpp or CMakeLists.txt without one;
of two blocks for one file the first counts. A folder with a CMakeLists.txt is a project. A block of text is what the
program before it prints. The programs run where the shipped data is, and have settings of their own.
"""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

BLOCK = re.compile(r"^(?:[^\n]*`([\w/]+\.\w+)`[^\n]*\n\n)?```(cpp|cmake|text)\n(.*?)^```$", re.MULTILINE | re.DOTALL)
UNNAMED = {"cpp": "main.cpp", "cmake": "CMakeLists.txt"}


def files_and_outputs(page):
    """The files of the page, and what its programs print, each by the name of the file."""
    files, outputs, last = {}, {}, None
    for name, language, content in BLOCK.findall(page.read_text(encoding="utf-8")):
        if language == "text":
            outputs[last] = content
        else:
            name = name or UNNAMED[language]
            files.setdefault(name, content)
            last = name if language == "cpp" else last
    return files, outputs


def run(*command, **options):
    result = subprocess.run(command, stdout=subprocess.PIPE, text=True, encoding="utf-8", **options)
    if result.returncode:
        print(result.stdout)
        sys.exit(f"exit code {result.returncode}: {' '.join(map(str, command))}")
    return result.stdout


def build(project, prefix, settings, generator):
    run("cmake", "-G", generator, f"-DPACKAGE_PREFIX={prefix}", "-C", settings, "-S", project, "-B", project / "build")
    run("cmake", "--build", project / "build", "--parallel", "2")


def executable(source, cmake):
    """The program that is built from the file: of the file's own name if the project does not say otherwise."""
    named = re.search(rf"add_executable\((\w+) {re.escape(source.name)}\)", cmake)
    return source.parent / "build" / (named[1] if named else source.stem)


def main(page, prefix, settings, generator):
    files, outputs = files_and_outputs(pathlib.Path(page))
    programs = [name for name in files if name.endswith(".cpp")]
    assert programs and all(outputs.values()), f"{page}: no programs, or one that prints nothing"
    failed = False
    with tempfile.TemporaryDirectory() as temporary:
        temporary = pathlib.Path(temporary)
        for name, content in files.items():
            path = temporary / name
            path.parent.mkdir(exist_ok=True)
            path.write_text(content, encoding="utf-8")
        for name in files:
            if name.endswith("CMakeLists.txt"):
                build((temporary / name).parent, prefix, settings, generator)

        data = temporary / "data"
        shutil.copytree(pathlib.Path(prefix, "share", "CLConfigUI"), data)
        environment = {**os.environ, "HOME": str(temporary), "XDG_CONFIG_HOME": str(temporary),
                       "XDG_RUNTIME_DIR": str(temporary), "QT_QPA_PLATFORM": "offscreen"}
        for name in programs:
            source = temporary / name
            cmake = (source.parent / "CMakeLists.txt").read_text(encoding="utf-8")
            printed = run(executable(source, cmake), cwd=data, env=environment)
            print(f"{name}: {len(printed.splitlines())} lines")
            if not printed or printed != outputs.get(name, printed):
                print(f"{page} says that {name} prints\n{outputs.get(name, 'something')}\nbut it prints\n{printed}")
                failed = True
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
