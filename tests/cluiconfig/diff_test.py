#!/usr/bin/env python3
"""Runs `cluiconfig diff` as people do. usage: diff_test.py PROGRAM SHIPPED_DOCUMENT"""

import json
import os
import random

import program


class Diff(program.TestCase):
    def differing(self, *arguments):
        """What the program prints when the documents differ."""
        result = self.run_program("diff", *arguments)
        self.assertEqual((result.returncode, result.stderr), (1, ""))
        return result.stdout

    def changed(self, change):
        """The JSON of the shipped document against what `change` makes of it, by table; empty where nothing is left out."""
        document = program.shipped()
        change(document)
        result = self.run_program("diff", str(program.SHIPPED), self.file("new.json", document), "--format", "json")
        tables = json.loads(result.stdout)
        self.assertEqual((result.returncode, result.stderr), (1 if tables else 0, ""))
        self.assertEqual([list(table) for table in tables], [["changed", "gained", "lost", "moved", "table"]] * len(tables))
        return {table.pop("table"): {kind: rows for kind, rows in table.items() if rows} for table in tables}

    def test_documents_that_mean_the_same_print_nothing_and_exit_with_0(self):
        shuffled = random.Random(1)
        document = program.shipped()

        def shuffle_keys(value):
            if isinstance(value, dict):
                keys = list(value)
                shuffled.shuffle(keys)
                return {key: shuffle_keys(value[key]) for key in keys}
            return [shuffle_keys(element) for element in value] if isinstance(value, list) else value

        document["Unknown"] = "is ignored"
        document["Axes combinations"][0]["Comment"] = "is ignored"
        path = self.file("new.json", json.dumps(shuffle_keys(document), indent=1))
        self.assertEqual(self.output("diff", str(program.SHIPPED), path), "")
        self.assertEqual(json.loads(self.output("diff", path, str(program.SHIPPED), "--format", "json")), [])

    def test_text_has_a_line_for_each_row(self):
        document = program.shipped()
        old = self.file("old.json", document)
        document["Filters"]["Tasks"]["Skipped"][0] = "New task"
        document["Colors"]["Custom colors"][-1]["RGB"] = [1, 2, 3]
        document["Recipe"]["ToolSummaryCommand"].insert(0, document["Recipe"]["ToolSummaryCommand"].pop())
        document["MSVUnits"][0]["MultiParams"] = ["Mass", "No such"]
        document["dQ_dU"]["Graph"]["Title"] = "Other"
        self.assertEqual(self.differing(old, self.file("new.json", document)), """\
Compound units: 1 changed
  ~ Physical parameter "Current", Operator "Divide": With ["Mass", "Area", "Time"] → ["Mass", "None"]

Skipped tasks: 1 gained, 1 lost
  + Task "New task"
  - Task "Pause"

Palette: 1 changed
  ~ Name "Grey": Colour "#bbbbbb" → "#010203"

Default colours: 3 changed
  ~ Element "Curve 20": Colour "#bbbbbb" → "#010203"
  ~ Element "Grid": Colour "#bbbbbb" → "#010203"
  ~ Element "Rest": Colour "#bbbbbb" → "#010203"

Recipe entries: 1 moved
  > Command "ToolSummaryCommand", Title "Summary per loop": place 12 → 10

dQ/dU graph: 1 changed
  ~ Graph "Differential capacity" → "Other"
""")

    def test_combinations_gained_and_lost(self):
        def change(document):
            document["Axes combinations"] += [
                {"X": [{"Name": "Phase / deg", "Category": "Impedance"}],
                 "Y1/Y2": [{"Name": "Frequency / Hz", "Category": "Impedance"}],
                 "DEFAULT_SCALE_X": "LINEAR", "DEFAULT_SCALE_Y": "LOG", "ORTHONORMAL_AXIS": "TRUE"}]

        row = {"X": "Phase / deg", "Y": "Frequency / Hz", "Category": "Impedance", "X scale": "linear",
               "Y scale": "logarithmic", "Orthonormal": True}
        self.assertEqual(self.changed(change), {"Axes combinations": {"gained": [row]}})
        old = str(self.directory / "new.json")
        tables = json.loads(self.differing(old, str(program.SHIPPED), "--format", "json"))
        self.assertEqual([(table["table"], table["gained"], table["lost"]) for table in tables],
                         [("Axes combinations", [], [row])])

    def test_scales_and_flags_of_a_combination(self):
        def change(document):
            document["Axes combinations"][-1].update(DEFAULT_SCALE_X="LINEAR", ORTHONORMAL_AXIS="TRUE")

        (kind, rows), = self.changed(change)["Axes combinations"].items()
        self.assertEqual((kind, len(rows)), ("changed", 8))
        self.assertEqual(rows[0]["changes"], [{"column": "Orthonormal", "from": False, "to": True},
                                              {"column": "X scale", "from": "logarithmic", "to": "linear"}])

    def test_renamed_rows_are_changed_and_not_lost(self):
        def change(document):
            document["Representations"][0]["Name"] = "Renamed"
            document["Statistics"]["Voltage 2"] = document["Statistics"].pop("Voltage")
            document["Ragone Plot"]["Areal"][0]["Title"] = "Renamed"
            document["Processed Data"][0]["Title"] = "Renamed"
            document["Recipe"]["GraphCommand"][0]["UITitle"] = "Renamed"
            document["Process Formula"]["X Formulas"][0]["Displayed Formula"] = "Renamed"
            document["Colors"]["Custom colors"][1]["name"] = "Renamed"
            for element, name in document["Colors"]["Default colors"].items():
                document["Colors"]["Default colors"][element] = "Renamed" if name == "Orange" else name

        tables = self.changed(change)
        renamed = {table: [(change["column"], change["to"]) for row in kinds.pop("changed") for change in row["changes"]]
                   for table, kinds in tables.items()}
        self.assertEqual(renamed, {
            "Representations": [("Name", "Renamed")], "Statistics graphs": [("Graph", "Voltage 2")] * 3,
            "Ragone plots": [("Curve", "Renamed")], "Processed-data graphs": [("Graph", "Renamed")],
            "Recipe entries": [("Title", "Renamed")], "Process formulas": [("Displayed", "Renamed")],
            "Palette": [("Name", "Renamed")]})
        self.assertEqual(set(map(len, tables.values())), {0})

    def test_every_section_shows_its_changes(self):
        def change(document):
            document["Axes combinations"].pop()
            document["Representations"].pop()
            document["MSVUnits"].pop()
            document["Filters"]["Tasks"]["Skipped"].pop()
            document["Tools"]["Summary Table"]["Per loop"]["Loop"].pop()
            document["Colors"]["Custom colors"].pop()
            document["Colors"]["Default colors"].popitem()
            document["Statistics"].popitem()
            document["Ragone Plot"].popitem()
            document["Processed Data"].pop()
            document["Recipe"]["GraphCommand"].pop()
            document["Process Formula"]["Y2 Formulas"].pop()
            document["dQ_dU"]["Table"].pop()
            document["dQ_dU"]["Graph"]["X"] = "Net Capacity / Ah"
            document["Debug"]["importDialogDisplayClIds"] = True

        tables = self.changed(change)
        self.assertEqual(sorted(tables), sorted(self.tables("show")))
        for table, kinds in tables.items():
            single_row = table in ("dQ/dU graph", "Debug switches")
            self.assertIn("changed" if single_row else "lost", kinds, table)
        self.assertEqual(tables["Debug switches"]["changed"],
                         [{"row": {"Switch": "Identifiers in the import dialog", "On": False},
                           "changes": [{"column": "On", "from": False, "to": True}]}])

    def test_as_few_rows_as_possible_are_moved(self):
        def change(document):
            columns = document["Tools"]["Summary Table"]["Per step"]["Step"]
            columns.insert(0, columns.pop())

        (row,) = self.changed(change)["Summary table columns"]["moved"]
        self.assertEqual((row["row"]["Column"], row["from"], row["to"]), ("Mean Temperature / degC", 12, 1))

    def test_of_repeated_rows_the_first_goes_with_the_first(self):
        def change(document):
            document["Filters"]["Tasks"]["Skipped"] *= 2

        (kind, rows), = self.changed(change)["Skipped tasks"].items()
        self.assertEqual((kind, [row["Task"] for row in rows]), ("gained", program.shipped()["Filters"]["Tasks"]["Skipped"]))

    def test_columns_that_the_catalogue_does_not_know_are_told_from_known_ones(self):
        def change(document):
            document["dQ_dU"]["Table"][0] = "Cycle Number"

        rows = self.changed(change)["dQ/dU columns"]
        self.assertEqual((rows["lost"][0]["Column"], rows["gained"][0]["Column"]), ("Cycle Count / 1", None))

    def test_catalogue_holds_for_both_documents(self):
        catalogue = self.file("arrays.json", {"Version": 1, "Categories": [
            {"Name": "Bench", "Arrays": [{"Name": name, "Parameter": "Voltage", "Unit": "V"} for name in ("P1 / V", "P2 / V")]}]})
        document = program.shipped()
        document["Representations"] = []
        document["Axes combinations"] = [
            {"X": [{"Name": "P1 / V"}], "Y1/Y2": [{"Name": "P2 / V"}], "DEFAULT_SCALE_X": "LINEAR",
             "DEFAULT_SCALE_Y": "LINEAR", "ORTHONORMAL_AXIS": "FALSE"}]
        old = self.file("old.json", document)
        document["Axes combinations"] = []
        new = self.file("new.json", document)
        self.assertEqual(self.output("diff", old, new), "")
        self.assertEqual(self.differing(old, new, "--catalogue", catalogue).splitlines()[0], "Axes combinations: 1 lost")

    def test_document_that_would_be_refused_is_named_with_exit_code_2(self):
        document = program.shipped()
        del document["Colors"]
        refused = self.file("refused.json", document)
        for documents in ((refused, str(program.SHIPPED)), (str(program.SHIPPED), refused)):
            self.assertEqual(self.message(2, "diff", *documents),
                             f'Cannot compare "{refused}": Missing colors configuration node\n')

    def test_document_that_cannot_be_read_is_named_with_exit_code_2(self):
        deep = self.file("deep.json", "[" * 10_000 + "]" * 10_000)
        bytes_ = self.file("bytes.json", b'{"Version": "\xff"}')
        for path in (deep, bytes_, str(self.directory), str(self.directory / "missing")):
            for documents in ((path, str(program.SHIPPED)), (str(program.SHIPPED), path)):
                message = self.message(2, "diff", *documents)
                self.assertIn(path, message)
                self.assertEqual(len(message.splitlines()), 1)
        self.message(2, "diff", deep)

    @program.needs_posix("a named pipe")
    def test_pipe_is_refused_instead_of_waited_for(self):
        path = str(self.directory / "pipe")
        os.mkfifo(path)
        self.assertIn("it is a pipe or a device", self.message(2, "diff", str(program.SHIPPED), path))


if __name__ == "__main__":
    program.main()
