#!/usr/bin/env python3
"""Makes the mistakes that people make in the shipped document, one at a time, and compares what `cluiconfig check` says
with what is written down.

usage: mistakes_test.py PROGRAM SHIPPED_DOCUMENT MISTAKES           runs the tests
       mistakes_test.py --write PROGRAM SHIPPED_DOCUMENT MISTAKES   writes down what it says now

A mistake replaces the first occurrence of a text by another one, and has lines "LINE:COLUMN SEVERITY RULE: MESSAGE".
"""

import json
import pathlib
import sys

import program

MISTAKES = pathlib.Path()


def mistakes():
    return json.loads(MISTAKES.read_text(encoding="utf-8"))


class Mistakes(program.TestCase):
    def said(self, mistake):
        shipped = program.SHIPPED.read_text(encoding="utf-8")
        self.assertIn(mistake["replace"], shipped)
        document = self.file("UIConfig.json", shipped.replace(mistake["replace"], mistake["by"], 1))
        report = json.loads(self.run_program("check", "--format", "json", document).stdout)[0]
        return ["%(line)d:%(column)d %(severity)s %(rule)s: %(message)s" % finding for finding in report["findings"]]

    def test_each_is_said_at_its_place(self):
        for mistake in mistakes():
            with self.subTest(mistake["replace"] + " → " + mistake["by"]):
                self.assertEqual(self.said(mistake), mistake["says"])

    def test_none_goes_unnoticed(self):
        self.assertGreaterEqual(len(mistakes()), 100)
        self.assertEqual([mistake for mistake in mistakes() if not mistake["says"]], [])

    def write(self):
        lines = [json.dumps({**mistake, "says": self.said(mistake)}, ensure_ascii=False) for mistake in mistakes()]
        MISTAKES.write_text("[\n" + ",\n".join(lines) + "\n]\n", encoding="utf-8")


if __name__ == "__main__":
    writes = sys.argv[1] == "--write"
    if writes:
        sys.argv.pop(1)
    MISTAKES, = (pathlib.Path(argument).resolve() for argument in program.take_arguments())
    program.run_tests(["Mistakes.write"] if writes else ())
