#!/usr/bin/env python3
"""Runs cluiconfig with a catalogue of data arrays of one's own, and does what docs/catalogue.md says.
usage: catalogue_test.py PROGRAM SHIPPED_DOCUMENT"""

import json
import pathlib
import re

import program

PAGE = pathlib.Path(__file__).resolve().parents[2] / "docs" / "catalogue.md"


class Catalogue(program.TestCase):
    def catalogue(self, *names):
        return self.file("arrays.json", {"Version": 1, "Categories": [
            {"Name": "Bench", "Arrays": [{"Name": name, "Parameter": "Voltage", "Unit": "V"} for name in names]}]})

    def document(self):
        document = program.shipped()
        document["Axes combinations"] = [
            {"X": [{"Name": "Probe 1 / V"}], "Y1/Y2": [{"Name": "Probe 2 / V"}], "DEFAULT_SCALE_X": "LINEAR",
             "DEFAULT_SCALE_Y": "LINEAR", "ORTHONORMAL_AXIS": "FALSE"}]
        document["Representations"] = []
        return self.file("document.json", document)

    def test_documents_are_read_with_the_arrays_of_the_catalogue(self):
        catalogue = self.catalogue("Probe 1 / V", "Probe 2 / V")
        for arguments in (["--catalogue", catalogue, "axes", self.document()],
                          ["axes", self.document(), "--catalogue", catalogue]):
            self.assertEqual(self.tables(*arguments), {"X axes": [{"X": "Probe 1 / V", "Y axes against it": 1}]})
        self.assertEqual(self.tables("axes", self.document()), {"X axes": []})

    def test_shipped_catalogue_is_what_stands_without_one(self):
        catalogue = str(program.SHIPPED.parent / "DataArrays.json")
        self.assertEqual(self.output("--catalogue", catalogue, "show"), self.output("show"))

    def test_catalogue_that_cannot_be_used_is_named_with_exit_code_2(self):
        wrong = self.file("wrong.json", {"Version": 1, "Categories": [{"Name": "Bench", "Arrays": [{}]}]})
        for path, reason in ((wrong, '"Name" is missing or empty (at /Categories/0/Arrays/0)'),
                             (self.file("text.json", "{]"), "is not valid JSON: line 1, column 2"),
                             (str(program.SHIPPED), "The format version is 29: expected 1"),
                             (str(self.directory), "it is a directory"),
                             (str(self.directory / "missing"), "Cannot open")):
            message = self.message(2, "--catalogue", path, "show")
            self.assertIn(path, message)
            self.assertIn(reason, message)


class Page(program.TestCase):
    def setUp(self):
        super().setUp()
        self.page = PAGE.read_text(encoding="utf-8")

    def test_its_commands_lead_from_the_shipped_catalogue_to_a_checked_document(self):
        self.assertEqual(re.findall(r"^\$ cluiconfig ([^#]*?)\s+#", self.page, re.MULTILINE),
                         ["catalogue > site.json", "check-catalogue site.json",
                          "check --catalogue site.json UIConfig.json"])
        text = self.output("catalogue")
        self.assertEqual(text, (program.SHIPPED.parent / "DataArrays.json").read_text(encoding="utf-8"))
        site = self.file("site.json", text)
        self.assertEqual(self.output("check-catalogue", site), f"{site}: loads\n")
        self.assertEqual(self.output("check", "--catalogue", site, str(program.SHIPPED)), f"{program.SHIPPED}: loads\n")

    def test_it_describes_the_keys_that_the_schema_has(self):
        rows = self.page.split("| Key of an array |")[1].split("\n\n")[0].split("\n")[2:]
        schema = json.loads(self.output("schema", "catalogue"))
        self.assertEqual([row.split(" | ")[0].strip("| ") for row in rows],
                         list(schema["definitions"]["array"]["properties"]))

    def test_its_example_is_a_catalogue(self):
        example = self.file("example.json", self.page.split("```json\n")[1].split("```")[0])
        self.assertEqual(self.output("check-catalogue", "--strict", example), f"{example}: loads\n")


class Schema(program.TestCase):
    def test_prints_the_schema_that_is_installed(self):
        installed = program.SHIPPED.parent / "DataArrays.schema.json"
        self.assertEqual(self.output("schema", "catalogue"), installed.read_text(encoding="utf-8"))
        self.assertEqual(self.output("schema", "document"), self.output("schema"))

    def test_there_is_none_of_anything_else(self):
        self.assertIn("document,catalogue", self.message(2, "schema", "recipe"))


if __name__ == "__main__":
    program.main()
