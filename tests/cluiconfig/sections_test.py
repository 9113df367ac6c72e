#!/usr/bin/env python3
"""Checks that the program, the JSON Schema, the bash completion and docs/document.md know the same sections of the
document. usage: sections_test.py PROGRAM SHIPPED_DOCUMENT"""

import json
import pathlib
import re

import program

SOURCE = pathlib.Path(__file__).resolve().parents[2]


class Sections(program.TestCase):
    def setUp(self):
        super().setUp()
        self.sections = self.tables("show", "--list-sections")["Sections"]
        self.assertTrue(self.sections)
        self.schema = json.loads(self.output("schema"))
        self.document = (SOURCE / "docs" / "document.md").read_text(encoding="utf-8")

    def test_schema_has_them_with_their_types_and_requires_those_that_are_required(self):
        others = {"$schema", "Version"}
        self.assertEqual(set(self.schema["properties"]) - others, {section["Section"] for section in self.sections})
        for section in self.sections:
            name = section["Section"]
            self.assertEqual(self.schema["properties"][name]["type"], section["Type"], name)
            self.assertEqual(name in self.schema["required"], section["Required"], name)
            self.assertIn("title", self.schema["properties"][name], name)

    def test_documentation_has_them_in_their_order_and_says_what_is_required(self):
        described = [(name, "(required)" in heading)
                     for heading in re.findall(r'^## (".*)$', self.document, re.MULTILINE)
                     for name in re.findall(r'"([^"]+)"', heading)]
        self.assertEqual(described, [(section["Section"], section["Required"]) for section in self.sections])

    def test_documentation_quotes_what_the_application_says_when_one_is_missing(self):
        text = " ".join(self.document.split())
        for section in self.sections:
            self.assertIn(section["When it is missing"], text, section["Section"])

    def test_every_section_is_shown_with_what_the_shipped_document_gives(self):
        for section in self.sections:
            tables = self.tables("show", "--section", section["Section"])
            self.assertEqual(list(tables), section["Tables"])
            for heading, rows in tables.items():
                self.assertTrue(rows, heading)

    def test_diff_compares_every_table(self):
        for section in self.sections:
            name = section["Section"]
            document = program.shipped()
            document[name] = self.emptied(document[name], self.schema["properties"][name])
            path = self.file("new.json", document)
            old, new = self.tables("show"), self.tables("show", path)
            differing = [heading for heading in old if old[heading] != new[heading]]
            self.assertLessEqual(set(differing), set(section["Tables"]) | {"Representations"}, name)
            self.assertTrue(differing or name == "Debug", name)  # its switches are off in the shipped document
            result = self.run_program("diff", str(program.SHIPPED), path, "--format", "json")
            self.assertEqual([table["table"] for table in json.loads(result.stdout)], differing, name)

    def emptied(self, value, schema):
        """A section as empty as it may be."""
        if isinstance(value, list):
            return []
        return {key: type(value[key])() for key in schema.get("required", [])}

    def test_completion_offers_them_and_their_tables(self):
        names = {name for section in self.sections for name in [section["Section"], *section["Tables"]]}
        self.assertEqual(set(self.completed("show", "--section", "'")), names)
        self.assertEqual(self.completed("show", "--section", "Axes\\ co"), ["Axes\\ combinations"])
        self.assertEqual(self.completed("show", "--section", "Pal"), ["Palette"])


if __name__ == "__main__":
    program.main()
