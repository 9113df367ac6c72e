#!/usr/bin/env python3
"""Runs `cluiconfig show` as people do. usage: show_test.py PROGRAM SHIPPED_DOCUMENT"""

import json
import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

PROGRAM = ""
SHIPPED = pathlib.Path()


def cluiconfig(*arguments):
    return subprocess.run([PROGRAM, *arguments], capture_output=True, text=True, encoding="utf-8", timeout=60)


class Show(unittest.TestCase):
    def setUp(self):
        directory = tempfile.TemporaryDirectory()
        self.addCleanup(directory.cleanup)
        self.path = pathlib.Path(directory.name) / "My document.json"

    def shown(self, document):
        self.path.write_text(json.dumps(document), encoding="utf-8")
        result = cluiconfig("show", str(self.path), "--format", "json")
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        return json.loads(result.stdout)

    def test_no_document_means_the_shipped_one(self):
        self.assertEqual(cluiconfig("show").stdout, cluiconfig("show", str(SHIPPED)).stdout)

    def test_text_has_a_heading_for_every_section_with_the_number_of_its_rows(self):
        text = cluiconfig("show").stdout
        for heading in ("Axes combinations (521)", "Representations (15)", "Skipped tasks (", "Palette (20)",
                        "Recipe entries (35)", "dQ/dU graph (1)", "Debug switches (3)"):
            self.assertIn("\n" + heading, "\n" + text)

    def test_json_has_every_row_that_text_joins(self):
        tables = json.loads(cluiconfig("show", "--format", "json").stdout)
        self.assertEqual(len(tables), 15)
        self.assertEqual(len(tables["Axes combinations"]), 521)
        self.assertEqual(tables["Axes combinations"][0],
                         {"X": "Test Time / s", "Y": "Voltage / V", "Category": "Potentiostat", "X scale": "linear",
                          "Y scale": "linear", "Orthonormal": False})

    def test_what_the_document_says_is_what_is_shown(self):
        document = json.loads(SHIPPED.read_text(encoding="utf-8"))
        document["Colors"] = {"Custom colors": [{"name": "Rust", "RGB": [183, 65, 14]}, {"name": "None", "RGB": [0, 0, 300]}],
                              "Default colors": {"Grid": "Rust", "Axis": "Missing"}}
        document["Recipe"]["GraphCommand"] = [{"UITitle": "Gap", "Param1": "first", "Param3": "third", "Param4": 4}]
        document["Tools"] = {"Summary Table": {"Per step": {"Step": ["no such column"]}}}
        document["Statistics"] = {"Empty": []}
        tables = self.shown(document)
        self.assertEqual(tables["Palette"],
                         [{"Name": "Rust", "Colour": "#b7410e"}, {"Name": "None", "Colour": "(invalid)"}])
        self.assertEqual(tables["Default colours"],
                         [{"Element": "Axis", "Colour": None}, {"Element": "Grid", "Colour": "#b7410e"}])
        self.assertEqual(tables["Recipe entries"][0],
                         {"Command": "GraphCommand", "Title": "Gap", "Parameters": ["first", "third"]})
        self.assertEqual(tables["Summary table columns"],
                         [{"Table": "Per step", "Category": None, "Column": None, "Unit": None}])
        self.assertEqual([graph["Graph"] for graph in tables["Statistics graphs"]], ["Empty"])

    def test_one_section_is_asked_for_by_its_key_or_by_a_heading(self):
        everything = json.loads(cluiconfig("show", "--format", "json").stdout)
        for name, headings in (("Colors", ["Palette", "Default colours"]), ("palette", ["Palette"]),
                               ("dQ_dU", ["dQ/dU columns", "dQ/dU graph"]), ("Debug", ["Debug switches"])):
            shown = json.loads(cluiconfig("show", "--section", name, "--format", "json").stdout)
            self.assertEqual(shown, {heading: everything[heading] for heading in headings})
        text = cluiconfig("show", str(SHIPPED), "--section", "Debug").stdout
        self.assertEqual(text.splitlines()[0], "Debug switches (3)")

    def test_every_section_of_the_document_can_be_asked_for(self):
        for key in json.loads(SHIPPED.read_text(encoding="utf-8")):
            if key != "Version":
                self.assertEqual(cluiconfig("show", "--section", key).returncode, 0, key)

    def test_unknown_section_gives_the_near_ones_and_exit_code_2(self):
        result = cluiconfig("show", "--section", "Colours")
        self.assertEqual((result.returncode, result.stdout, result.stderr),
                         (2, "", 'There is no section "Colours". Did you mean "Colors"?\n'))
        self.assertIn("The sections are: Axes combinations, ", cluiconfig("show", "--section", "0815").stderr)

    @unittest.skipUnless(os.name == "posix", "needs a pseudo terminal")
    def test_swatches_are_for_terminals_that_can_show_them(self):
        black, orange = "\x1b[48;2;0;0;0m      \x1b[0m", "\x1b[48;5;214m      \x1b[0m"
        self.assertIn(f"Black           #000000  {black}\r\n", self.on_terminal(COLORTERM="truecolor"))
        self.assertIn(f"Black           #000000  {black}\r\n", self.on_terminal(COLORTERM="24bit"))
        self.assertIn(f"Orange          #e69f00  {orange}\r\n", self.on_terminal(COLORTERM=""))
        for without in ({"NO_COLOR": "1"}, {"TERM": "dumb"}):
            self.assertNotIn("\x1b", self.on_terminal(COLORTERM="truecolor", **without))
        self.assertNotIn("\x1b", cluiconfig("show", "--section", "Palette").stdout)

    def on_terminal(self, **environment):
        try:
            controller, terminal = os.openpty()
        except OSError as error:
            self.skipTest(f"no pseudo terminal to be had here: {error}")
        inherited = {name: value for name, value in os.environ.items() if name != "NO_COLOR"}
        with os.fdopen(controller, "rb", buffering=0) as screen:
            program = subprocess.Popen([PROGRAM, "show", "--section", "Palette"], stdout=terminal,
                                       env={**inherited, "TERM": "xterm", **environment})
            os.close(terminal)
            output = b""
            try:
                while piece := screen.read(4096):
                    output += piece
            except OSError:  # how a terminal says that nobody writes to it any more
                pass
            self.assertEqual(program.wait(60), 0)
        return output.decode()

    def test_document_that_cannot_be_opened_gives_exit_code_1(self):
        directory = str(self.path.parent)
        for path, reason in ((directory, "it is a directory"), (str(self.path), "")):
            result = cluiconfig("show", path)
            self.assertEqual((result.returncode, result.stdout), (1, ""))
            self.assertIn(f'Cannot open "{path}": {reason}', result.stderr)

    @unittest.skipUnless(hasattr(os, "mkfifo"), "needs named pipes")
    def test_pipe_is_refused_instead_of_waited_for(self):
        os.mkfifo(self.path)
        result = cluiconfig("show", str(self.path))
        self.assertEqual((result.returncode, result.stdout), (2, ""))
        self.assertIn("it is a pipe or a device", result.stderr)

    @unittest.skipUnless(os.path.exists("/dev/full"), "needs /dev/full")
    def test_output_that_cannot_be_written_is_an_error(self):
        with open("/dev/full", "wb") as full:
            result = subprocess.run([PROGRAM, "show"], stdout=full, stderr=subprocess.PIPE)
        self.assertEqual(result.returncode, 2)
        self.assertIn(b"standard output", result.stderr)

    def test_refused_document_gives_the_message_of_the_loader_and_exit_code_1(self):
        document = json.loads(SHIPPED.read_text(encoding="utf-8"))
        del document["Colors"]
        self.path.write_text(json.dumps(document), encoding="utf-8")
        result = cluiconfig("show", str(self.path))
        self.assertEqual((result.returncode, result.stdout, result.stderr),
                         (1, "", "Missing colors configuration node\n"))

    def test_broken_document_gives_path_line_and_column(self):
        self.path.write_text('{\n  "Version": 29,\n  "Colors": [,]\n}', encoding="utf-8")
        result = cluiconfig("show", str(self.path))
        self.assertEqual((result.returncode, result.stdout), (1, ""))
        self.assertIn(str(self.path), result.stderr)
        self.assertIn("line 3, column 14", result.stderr)

    def test_wrong_arguments_exit_with_2(self):
        for arguments in ([], ["shew"], ["show", "--format", "yaml"], ["show", "a.json", "b.json"]):
            result = cluiconfig(*arguments)
            self.assertEqual((arguments, result.returncode, result.stdout), (arguments, 2, ""))
            self.assertNotEqual(result.stderr, "")

    def test_help_and_version_are_answers(self):
        version = json.loads(SHIPPED.read_text(encoding="utf-8"))["Version"]
        self.assertIn(f"format version {version}", cluiconfig("--version").stdout)
        self.assertIn("--format", cluiconfig("show", "--help").stdout)


if __name__ == "__main__":
    PROGRAM, SHIPPED = sys.argv[1], pathlib.Path(sys.argv[2])
    unittest.main(argv=sys.argv[:1])
