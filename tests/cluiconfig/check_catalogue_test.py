#!/usr/bin/env python3
"""Runs `cluiconfig check-catalogue` as people do.

usage: check_catalogue_test.py PROGRAM SHIPPED_DOCUMENT EXAMPLES DOCS     runs the tests
       check_catalogue_test.py --table PROGRAM SHIPPED_DOCUMENT EXAMPLES DOCS   prints the table of docs/catalogue.md

An example is a change to EXAMPLES/valid.json, with what is found then.
"""

import json

import check_test
import program


def shipped():
    return program.SHIPPED.parent / "DataArrays.json"


def catalogue(*arrays):
    return {"Version": 1, "Categories": [{"Name": "Bench", "Arrays": list(arrays)}]}


class Examples(check_test.Examples):
    COMMAND, FILE = "check-catalogue", "catalogue.json"

    def test_verdicts_are_those_of_who_uses_the_catalogue(self):
        verdicts = set()
        for name, example in check_test.examples().items():
            with self.subTest(name):
                path = self.file(self.FILE, check_test.changed(example))
                used = self.run_program("--catalogue", self.FILE, "units", cwd=self.directory)
                self.assertEqual(used.returncode, 0 if example["error"] is None else 2, path)
                if example["error"]:
                    self.assertEqual(used.stderr, f"{example['error']}. `cluiconfig check-catalogue` tells all that is wrong "
                                                  "with it.\n")
                verdicts.add(used.returncode)
        self.assertEqual(verdicts, {0, 2})

    def test_documentation_holds_the_table(self):
        self.assertIn(check_test.table(needs_example=True), check_test.DOCS.read_text(encoding="utf-8"))


class CheckCatalogue(check_test.InDirectory):
    COMMAND, FILE = "check-catalogue", "catalogue.json"

    def test_catalogues_without_mistakes_get_nothing_but_the_verdict(self):
        for path in (shipped(), check_test.EXAMPLES / "valid.json"):
            result = self.check("--strict", str(path))
            self.assertEqual((result.returncode, result.stdout, result.stderr), (0, f"{path}: loads\n", ""))

    def test_what_is_empty_is_said_to_be(self):
        name = self.document(json.dumps({"Version": 1, "Categories": []}))
        self.assertEqual([(finding["rule"], finding["pointer"]) for finding in self.findings(name)],
                         [("empty-catalogue", "/Categories")])
        self.assertEqual(self.check(name).returncode, 0)
        self.assertEqual(self.check("--strict", name).returncode, 1)

    def test_every_mistake_is_told_and_that_of_the_reader_first(self):
        units = ["ohm", "A", "uV", "V"]
        arrays = [{"Name": f"Probe {unit}", "Parameter": "Voltage", "Unit": unit, "Typ": "Float"} for unit in units]
        arrays.insert(0, {"Name": "Probe", "Type": 3})
        name = self.document(json.dumps(catalogue(*arrays), indent=1))
        findings = self.findings(name)
        self.assertEqual([finding["rule"] for finding in findings],
                         ["wrong-type", "unknown-unit", "unknown-key", "wrong-unit", "unknown-key", "unknown-unit",
                          "unknown-key", "unknown-key"])
        self.assertEqual([finding["line"] for finding in findings], sorted(finding["line"] for finding in findings))

    def test_a_hundred_thousand_mistakes_are_counted_and_two_hundred_listed(self):
        arrays = [{"Name": f"Probe {i}", "Parameter": "Voltage", "Unit": "uV"} for i in range(100_000)]
        result = self.check(self.document(json.dumps(catalogue(*arrays))))
        lines = result.stdout.splitlines()
        self.assertEqual((result.returncode, len(lines)), (1, 1 + 201 + 1))
        self.assertIn("99800 more findings of this rule follow, 100000 in all.", lines[-2])

    def test_a_document_is_told_from_a_catalogue(self):
        self.assertEqual([(finding["rule"], finding["message"]) for finding in self.findings(str(program.SHIPPED))],
                         [("wrong-kind", "This is a UIConfig.json, not a catalogue of data arrays: the application refuses "
                           "the catalogue. `cluiconfig check` checks it.")])

    def test_severities_can_be_changed_and_several_files_given(self):
        good = self.document(json.dumps(catalogue({"Name": "A"})), "good.json")
        bad = self.document(json.dumps(catalogue({"Name": "A", "Requird": True})), "bad.json")
        self.assertEqual(self.check(good, bad).returncode, 0)
        self.assertEqual(self.check("--rule", "unknown-key=error", good, bad).returncode, 1)
        self.assertEqual(self.check("--rule=unknown-key=off", bad).stdout, "bad.json: loads\n")
        self.assertEqual([report["file"] for report in json.loads(self.check("--format=json", good, bad).stdout)],
                         ["good.json", "bad.json"])
        results = json.loads(self.check("--format", "sarif", good, bad).stdout)["runs"][0]["results"]
        self.assertEqual([result["ruleId"] for result in results], ["unknown-key"])

    def test_what_cannot_be_read_or_is_not_given_exits_with_2(self):
        for arguments in (["missing.json"], ["."], []):
            self.assertEqual(self.check(*arguments).returncode, 2)
        self.assertIn("CATALOGUE is required", self.check().stderr)


if __name__ == "__main__":
    check_test.main(needs_example=True)
