#!/usr/bin/env python3
"""Makes the pages of the documentation, with the public headers and a picture of the rooms, in OUTPUT_DIRECTORY/html.

usage: docs.py SOURCE_DIRECTORY OUTPUT_DIRECTORY

The exit code is not 0 if something public has no description, or a link leads nowhere.
"""

import pathlib
import re
import shutil
import subprocess
import sys
import textwrap

SKIPPED = 77


def rooms(source_dir):
    """Folder of a room -> what is there in a few words, by the table of docs/design.md."""
    rows = re.findall(r"^\| `([\w/]+)/` \| (.*?) \|", (source_dir / "docs/design.md").read_text(encoding="utf-8"),
                      re.MULTILINE)
    return {folder: re.split("[:;]", text)[0].replace("`", "") for folder, text in rows}


def rooms_graph(source_dir):
    """The rooms and who includes whom, by the test that holds the includes to these arrows."""
    sys.path.insert(0, str(source_dir / "tests/style"))
    import arrows  # noqa: PLC0415: found only now

    words = rooms(source_dir)
    lines = ["digraph Rooms {", "rankdir=TB; ranksep=0.5; nodesep=0.3;",
             'node [shape=box, style="rounded,filled", fillcolor="#f4f6fa", color="#5373b4", fontname="DejaVu Sans", '
             "fontsize=10, margin=0.15];", 'edge [color="#5373b4"];']
    for room in arrows.ROOMS:
        text = "<br/>".join(textwrap.wrap(words[room], 26))
        lines.append(f'"{room}" [label=<<b>{room}</b><br/>{text}>];')
    lines += [f'"{room}" -> "{other}";' for room, others in arrows.ROOMS.items() for other in others]
    graph = "\n".join([*lines, "}"])
    return subprocess.run(["tred"], input=graph, capture_output=True, text=True, check=True).stdout


def version(source_dir):
    text = (source_dir / "CMakeLists.txt").read_text(encoding="utf-8")
    return re.search(r"^project\(CLConfigUI VERSION ([\d.]+)", text, re.MULTILINE)[1]


def main(source_dir, output_dir):
    for program, package in (("doxygen", "doxygen"), ("tred", "graphviz")):
        if not shutil.which(program):
            print(f"{program} not found: the package {package} has it")
            return SKIPPED
    source_dir, output_dir = pathlib.Path(source_dir).resolve(), pathlib.Path(output_dir).resolve()
    shutil.rmtree(output_dir / "html", ignore_errors=True)  # pages of what is gone
    output_dir.mkdir(parents=True, exist_ok=True)
    (output_dir / "rooms.dot").write_text(rooms_graph(source_dir), encoding="utf-8")
    settings = "\n".join(["@INCLUDE = docs/api/Doxyfile", f"PROJECT_NUMBER = {version(source_dir)}",
                          f'OUTPUT_DIRECTORY = "{output_dir}"', f'DOTFILE_DIRS = "{output_dir}"'])
    return subprocess.run(["doxygen", "-"], input=settings, text=True, cwd=source_dir, check=False).returncode


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
