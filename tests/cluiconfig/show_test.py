#!/usr/bin/env python3
"""Runs `cluiconfig show` as people do. usage: show_test.py PROGRAM SHIPPED_DOCUMENT"""

import json
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
        self.assertIn("format version 29", cluiconfig("--version").stdout)
        self.assertIn("--format", cluiconfig("show", "--help").stdout)


if __name__ == "__main__":
    PROGRAM, SHIPPED = sys.argv[1], pathlib.Path(sys.argv[2])
    unittest.main(argv=sys.argv[:1])
