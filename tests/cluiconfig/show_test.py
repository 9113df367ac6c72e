#!/usr/bin/env python3
"""Runs `cluiconfig show` as people do. usage: show_test.py PROGRAM SHIPPED_DOCUMENT"""

import json
import os
import subprocess
import unittest

import program


class Show(program.TestCase):
    def test_representations_say_which_y_can_be_drawn(self):
        document = program.shipped()
        document["Representations"] = [{"Name": str(i), "X": "Test Time / s", **ys} for i, ys in enumerate((
            {"Y1": "Voltage / V", "Y2": "Current / A"}, {"Y1": "Voltage / V"}, {"Y2": "Voltage / V"},
            {"Y1": "Voltage / V", "Y2": "Frequency / Hz"}, {"Y1": "Frequency / Hz", "Y2": "Voltage / V"},
            {"Y1": "Frequency / Hz"}))]
        rows = self.tables("show", self.file("document.json", json.dumps(document)))["Representations"]
        self.assertEqual([row["Drawn"] for row in rows], ["Y1 and Y2", "Y1", "Y2", "Y1", "Y2", "nothing"])

    def test_json_is_text_whatever_the_document_names(self):
        document = program.shipped()
        document["Colors"]["Custom colors"] += [{"name": name, "RGB": [1, 2, 3]} for name in ("A\ud800", "\udc00\\ud800", "\U0001f600")]
        path = self.file("document.json", document)
        for arguments in (["show", path], ["diff", str(program.SHIPPED), path]):
            result = subprocess.run([program.PROGRAM, *arguments, "--format", "json"], capture_output=True, timeout=60)
            self.assertEqual(result.stderr, b"")
            text = json.dumps(json.loads(result.stdout.decode()), ensure_ascii=False)
            text.encode()  # fails with halves of surrogate pairs
            for name in ("A\\\\ud800", "\\\\udc00\\\\ud800", "\U0001f600"):
                self.assertIn(f'"{name}"', text)

    def test_no_document_means_the_shipped_one(self):
        self.assertEqual(self.output("show"), self.output("show", str(program.SHIPPED)))

    def test_text_has_a_heading_for_every_section_with_the_number_of_its_rows(self):
        text = self.output("show")
        for heading in ("Axes combinations (521)", "Representations (15)", "Skipped tasks (", "Palette (20)",
                        "Recipe entries (35)", "dQ/dU graph (1)", "Debug switches (3)"):
            self.assertIn("\n" + heading, "\n" + text)

    def test_json_has_every_row_that_text_joins(self):
        tables = self.tables("show")
        self.assertEqual(len(tables), 15)
        self.assertEqual(len(tables["Axes combinations"]), 521)
        self.assertEqual(tables["Axes combinations"][0],
                         {"X": "Test Time / s", "Y": "Voltage / V", "Category": "Potentiostat", "X scale": "linear",
                          "Y scale": "linear", "Orthonormal": False})

    def test_what_the_document_says_is_what_is_shown(self):
        document = program.shipped()
        document["Colors"] = {"Custom colors": [{"name": "Rust", "RGB": [183, 65, 14]}, {"name": "None", "RGB": [0, 0, 300]}],
                              "Default colors": {"Grid": "Rust", "Axis": "Missing"}}
        document["Recipe"]["GraphCommand"] = [{"UITitle": "Gap", "Param1": "first", "Param3": "third", "Param4": 4}]
        document["Tools"] = {"Summary Table": {"Per step": {"Step": ["no such column"]}}}
        document["Statistics"] = {"Empty": []}
        tables = self.tables("show", self.file("My document.json", document))
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
        everything = self.tables("show")
        for name, headings in (("Colors", ["Palette", "Default colours"]), ("palette", ["Palette"]),
                               ("dQ_dU", ["dQ/dU columns", "dQ/dU graph"]), ("Debug", ["Debug switches"])):
            shown = self.tables("show", "--section", name)
            self.assertEqual(shown, {heading: everything[heading] for heading in headings})
        text = self.output("show", str(program.SHIPPED), "--section", "Debug")
        self.assertEqual(text.splitlines()[0], "Debug switches (3)")

    def test_every_section_of_the_document_can_be_asked_for(self):
        for key in program.shipped():
            if key != "Version":
                self.assertNotEqual(self.output("show", "--section", key), "", key)

    def test_unknown_section_gives_the_near_ones_and_exit_code_2(self):
        self.assertEqual(self.message(2, "show", "--section", "Colours"),
                         'There is no section "Colours". Did you mean "Colors"?\n')
        self.assertIn("The sections are: Axes combinations, ", self.message(2, "show", "--section", "0815"))

    def palette(self, **environment):
        return self.on_terminal("show", "--section", "Palette", environment=environment)

    @program.needs_posix("a pseudo terminal")
    def test_swatches_are_for_terminals_that_can_show_them(self):
        black, orange = "\x1b[48;2;0;0;0m      \x1b[0m", "\x1b[48;5;214m      \x1b[0m"
        self.assertIn(f"Black           #000000  {black}\n", self.palette(COLORTERM="truecolor"))
        self.assertIn(f"Black           #000000  {black}\n", self.palette(COLORTERM="24bit"))
        self.assertIn(f"Orange          #e69f00  {orange}\n", self.palette(COLORTERM=""))
        for without in ({"NO_COLOR": "1"}, {"TERM": "dumb"}):
            self.assertNotIn("\x1b", self.palette(COLORTERM="truecolor", **without))
        self.assertNotIn("\x1b", self.output("show", "--section", "Palette"))

    def with_nine_million_pairs(self, *more_ys):
        """A small document whose axes combinations the application expands to nine million."""
        entry = {"X": [{"Name": "Test Time / s", "Category": "Potentiostat"}] * 3000,
                 "Y1/Y2": [{"Name": "Voltage / V", "Category": "Potentiostat"}] * 3000 + list(more_ys),
                 "DEFAULT_SCALE_X": "LINEAR", "DEFAULT_SCALE_Y": "LINEAR", "ORTHONORMAL_AXIS": "FALSE"}
        return self.file("nine million.json", {**program.shipped(), "Axes combinations": [entry]})

    def run_in_half_a_gigabyte(self, *arguments):
        import resource
        limit = lambda: resource.setrlimit(resource.RLIMIT_AS, (1 << 29, 1 << 29))
        if self.run_program("--version", preexec_fn=limit).returncode != 0:
            self.skipTest("this program does not even start in so little memory")
        result = self.run_program(*arguments, preexec_fn=limit)
        return result.returncode, result.stdout, result.stderr

    @program.needs_posix("a limit of memory")
    def test_sections_that_are_not_asked_for_take_no_memory(self):
        document = self.with_nine_million_pairs()
        for section in ("Colors", "Debug", "Statistics"):
            self.assertEqual(self.run_in_half_a_gigabyte("show", "--section", section, document),
                             (0, self.output("show", "--section", section), ""))

    @program.needs_posix("a limit of memory")
    def test_sections_that_are_not_asked_for_are_refused_as_ever(self):
        document = self.with_nine_million_pairs({"Name": "Voltage", "Category": "Potentiostat"})
        self.assertEqual(self.run_in_half_a_gigabyte("show", "--section", "Colors", document),
                         (1, "", "Unexpected axes combination Y1/Y2: Voltage (Potentiostat)\n"))

    @program.needs_posix("a limit of memory")
    def test_memory_that_is_not_to_be_had_is_said(self):
        document = self.with_nine_million_pairs()
        for arguments in (["show", document], ["show", "--section", "Representations", document], ["axes", document],
                          ["diff", str(program.SHIPPED), document]):
            self.assertEqual(self.run_in_half_a_gigabyte(*arguments),
                             (2, "", "There is not enough memory for that.\n"))

    @program.needs_posix("a limit of memory")
    def test_nine_million_pairs_are_checked_in_little_memory(self):
        document = self.with_nine_million_pairs()
        code, output, errors = self.run_in_half_a_gigabyte("check", document)
        self.assertEqual((code, errors), (0, ""))
        self.assertIn("The entry gives 9000000 pairs", output)
        self.assertIn("8999999 of the 9000000 pairs of this entry have been paired before", output)

    def test_document_that_cannot_be_opened_gives_exit_code_1(self):
        for path, reason in ((str(self.directory), "it is a directory"), (str(self.directory / "missing"), "")):
            self.assertIn(f'Cannot open "{path}": {reason}', self.message(1, "show", path))

    @program.needs_posix("a named pipe")
    def test_pipe_is_refused_instead_of_waited_for(self):
        path = str(self.directory / "pipe")
        os.mkfifo(path)
        self.assertIn("it is a pipe or a device", self.message(2, "show", path))

    @unittest.skipUnless(os.path.exists("/dev/full"), "needs /dev/full")
    def test_output_that_cannot_be_written_is_an_error(self):
        with open("/dev/full", "wb") as full:
            result = subprocess.run([program.PROGRAM, "show"], stdout=full, stderr=subprocess.PIPE)
        self.assertEqual(result.returncode, 2)
        self.assertIn(b"standard output", result.stderr)

    def test_refused_document_gives_the_message_of_the_loader_and_exit_code_1(self):
        document = program.shipped()
        del document["Colors"]
        self.assertEqual(self.message(1, "show", self.file("refused.json", document)),
                         "Missing colors configuration node\n")

    def test_broken_document_gives_path_line_and_column(self):
        path = self.file("broken.json", '{\n  "Version": 29,\n  "Colors": [,]\n}')
        message = self.message(1, "show", path)
        self.assertIn(path, message)
        self.assertIn("line 3, column 14", message)

    def test_wrong_arguments_exit_with_2(self):
        for arguments in ([], ["shew"], ["show", "--format", "yaml"], ["show", "a.json", "b.json"]):
            self.assertNotEqual(self.message(2, *arguments), "")

    def test_help_and_version_are_answers(self):
        self.assertIn(f"format version {program.shipped()['Version']}", self.output("--version"))
        self.assertIn("--format", self.output("show", "--help"))


if __name__ == "__main__":
    program.main()
