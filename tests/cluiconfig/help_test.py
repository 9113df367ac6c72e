#!/usr/bin/env python3
"""Checks that the help, the manual and the bash completion of cluiconfig tell the same.
usage: help_test.py PROGRAM SHIPPED_DOCUMENT"""

import json
import os
import pathlib
import re
import shutil
import subprocess
import unittest

import program

SOURCE = pathlib.Path(__file__).resolve().parents[2]
MANUAL = SOURCE / "docs" / "cluiconfig.1"


def options_in(text):
    """The options that a help text lists, those that are for every command left out."""
    listed = re.findall(r"^  (-[^ ]+)", text, re.MULTILINE)
    names = {name for names in listed for name in names.split(",")}
    return names - {"-h", "--help"}


class Help(program.TestCase):
    def setUp(self):
        super().setUp()
        self.help = self.output("--help")
        self.commands = re.findall(r"^  ([a-z-]+) ", self.help.split("Subcommands:")[1].split("\n\n")[0], re.MULTILINE)
        self.manual = MANUAL.read_text(encoding="utf-8")

    def manual_of(self, command):
        """The options that the manual describes for a command."""
        section = self.manual.split(f"\n.Ss {command}\n")[1]
        section = re.split(r"\n\.S[sh] ", section)[0]
        return {f"-{name}" for name in re.findall(r"^\.It Fl (-[a-z-]+)", section, re.MULTILINE)}

    def test_there_are_commands_and_options_to_compare(self):
        self.assertLessEqual({"show", "arrays", "axes", "units", "diff", "format", "search", "catalogue", "check-catalogue"},
                             set(self.commands))
        self.assertEqual(options_in(self.help), {"--version", "--catalogue"})
        self.assertEqual(options_in(self.output("format", "--help")), {"--check", "--in-place"})

    def test_help_is_a_command_as_well(self):
        self.assertEqual(self.output("help"), self.help)
        for command in self.commands:
            self.assertEqual(self.output("help", command), self.output(command, "--help"), command)
        self.assertEqual(self.message(2, "help", "chek"), 'There is no command "chek". Did you mean "check"?\n')

    def test_unknown_words_are_named_with_those_that_are_near(self):
        commands = ", ".join(self.commands)
        for arguments, message in (
                (["shwo"], 'There is no command "shwo". Did you mean "show"? "cluiconfig help" tells more.'),
                (["shwo", "my.json", "--section", "x"], 'There is no command "shwo". Did you mean "show"? "cluiconfig help" tells more.'),
                (["shwo", "--help"], 'There is no command "shwo". Did you mean "show"? "cluiconfig help" tells more.'),
                (["0815"], f'There is no command "0815". The commands are: {commands}. "cluiconfig help" tells more.'),
                (["show", "--secton", "x"], 'There is no option "--secton". Did you mean "--section"? "cluiconfig help show" tells more.'),
                (["show", "--secton=x"], 'There is no option "--secton". Did you mean "--section"? "cluiconfig help show" tells more.'),
                (["check", "--strct"], 'There is no option "--strct". Did you mean "--strict"? "cluiconfig help check" tells more.'),
                (["show", "--catalog", "x"], 'There is no option "--catalog". Did you mean "--catalogue"? "cluiconfig help show" tells more.'),
                (["--vresion"], 'There is no option "--vresion". Did you mean "--version"? "cluiconfig help" tells more.'),
                (["show", "-x"], 'There is no option "-x". "cluiconfig help show" tells more.')):
            self.assertEqual(self.message(2, *arguments), message + "\n")

    def test_every_command_explains_its_exit_codes_or_gives_an_example(self):
        for command in self.commands:
            text = self.output(command, "--help")
            self.assertTrue(f"cluiconfig {command}" in text.split("Options:")[1] or "Exit code" in text, command)

    def test_manual_describes_every_command_with_its_options(self):
        for command in self.commands:
            self.assertEqual(self.manual_of(command), options_in(self.output(command, "--help")), command)
            self.assertIn(f"\n.Cm {command}\n", self.manual.split(".Sh DESCRIPTION")[0])
        general = self.manual.split("These options go with every command:")[1].split(".Sh COMMANDS")[0]
        for option in options_in(self.help) | {"--help"}:
            self.assertIn(f"Fl {option[1:]}", general)

    def test_completion_offers_every_command_with_its_options(self):
        offered = self.completed("")
        for name in self.commands + sorted(options_in(self.help)):
            self.assertIn(name, offered)
        everywhere = {"--help", "-h", "--version", "--catalogue"}
        for command in self.commands:
            self.assertEqual(set(self.completed(command, "-")), options_in(self.output(command, "--help")) | everywhere,
                             command)

    def test_completion_knows_the_words_behind_an_option(self):
        for command in self.commands:
            formats = re.search(r"--format TEXT:{([a-z,]+)}", self.output(command, "--help"))
            if formats:
                self.assertEqual(set(self.completed(command, "--format", "")), set(formats[1].split(",")), command)
        self.assertEqual(self.completed("search", "--strategy", "te"), ["technique", "text"])
        self.assertEqual(self.completed("schema", ""), ["document", "catalogue"])

    def test_completion_offers_every_rule_and_what_may_become_of_it(self):
        rules = [line.split(" ")[0] for line in self.output("check", "--list-rules").splitlines()]
        self.assertGreater(len(rules), 10)
        self.assertEqual(self.completed("check", "--rule", ""), [f"{rule}=" for rule in rules])
        self.assertEqual(self.completed("check", "--rule", "unused-color", "="), ["off", "warning", "error"])
        self.assertEqual(self.completed("check", "--rule", "=", "unused-color", "=", "w"), ["warning"])
        self.assertEqual(self.completed("check", "--format", "=", "s"), ["sarif"])

    def test_completion_offers_every_physical_parameter(self):
        parameters = {row["Parameter"] for row in self.tables("units")["Physical parameters"]}
        self.assertEqual(set(self.completed("units", "'")), parameters)
        self.assertEqual(self.completed("units", "Voltage", ""), [])

    def test_completion_offers_the_data_arrays_of_axes(self):
        xs = {row["X"] for row in self.tables("axes")["X axes"]}
        ys = {row["Y"] for row in self.tables("axes", "Frequency / Hz")["Y axes against Frequency / Hz"]}
        self.assertEqual(set(self.completed("axes", "'")), xs)
        self.assertEqual(set(self.completed("axes", "Frequency\\ /\\ Hz", "\"")), ys)
        self.assertEqual(self.completed("axes", "Frequency\\ /\\ Hz", "Phase\\ /\\ deg", ""), [])
        document = program.shipped()
        document["Axes combinations"] = [{"X": [{"Name": "Voltage / V"}], "Y1/Y2": [{"Name": "Current / A"}], "DEFAULT_SCALE_X": "LINEAR",
                                          "DEFAULT_SCALE_Y": "LINEAR", "ORTHONORMAL_AXIS": "FALSE"}]
        document["Representations"] = []
        path = self.file("my own.json", document)
        self.assertEqual(self.completed("axes", "my"), ["my\\ own.json"])
        self.assertEqual(self.completed("axes", "my\\ own.json", ""), ["Voltage\\ /\\ V"])
        self.assertEqual(self.completed("axes", path, "'Voltage / V'", ""), ["Current\\ /\\ A"])

    @program.needs_posix("a pseudo terminal")
    def test_completion_ends_what_a_person_types(self):
        self.file("my own.json", "{}")
        for typed, words in (("cluiconfig sh\t", ["show"]), ("cluiconfig help ax\t", ["help", "axes"]),
                             ("cluiconfig show --section Axes\\ c\t", ["show", "--section", "Axes combinations"]),
                             ("cluiconfig show --section 'Ragone P\t", ["show", "--section", "Ragone Plot"]),
                             ("cluiconfig check --rule unused\toff my\t", ["check", "--rule", "unused-color=off", "my own.json"]),
                             ("cluiconfig check --rule unused-color=w\t", ["check", "--rule", "unused-color=warning"]),
                             ("cluiconfig check --format=sa\t", ["check", "--format=sarif"]),
                             ("cluiconfig units 'Voltage r\t", ["units", "Voltage rate"]),
                             ("cluiconfig axes Freq\tPh\t", ["axes", "Frequency / Hz", "Phase / deg"])):
            with self.subTest(typed):
                self.assertEqual(self.typed(typed)[1:], words)

    def test_completion_offers_files(self):
        path = self.file("my.json", "{}")
        self.assertEqual(self.completed("diff", "m"), ["my.json"])
        self.assertEqual(self.completed("--catalogue", path[:-2]), [path])

    def test_manual_can_be_formatted(self):
        if shutil.which("mandoc"):
            command = ["mandoc", "-T", "utf8", "-W", "warning", str(MANUAL)]
        elif shutil.which("groff"):
            command = ["groff", "-mdoc", "-ww", "-T", "utf8", str(MANUAL)]
        else:
            self.skipTest("needs mandoc or groff")
        result = subprocess.run(command, capture_output=True, timeout=60)
        self.assertEqual((result.returncode, result.stderr), (0, b""))

    @unittest.skipUnless(os.path.exists("/dev/full"), "needs /dev/full")
    def test_help_and_version_that_cannot_be_written_are_an_error(self):
        for arguments in (["--help"], ["--version"], ["show", "--help"]):
            with open("/dev/full", "wb") as full:
                result = subprocess.run([program.PROGRAM, *arguments], stdout=full, stderr=subprocess.PIPE, text=True)
            self.assertEqual((result.returncode, result.stderr), (2, "standard output: No space left on device\n"))

    def test_version_names_library_and_document(self):
        version = re.search(r"project\(CLConfigUI VERSION ([0-9.]+)", (SOURCE / "CMakeLists.txt").read_text())[1]
        document = json.loads(program.SHIPPED.read_text(encoding="utf-8"))["Version"]
        self.assertEqual(self.output("--version"), f"cluiconfig {version}, UIConfig.json format version {document}\n")


if __name__ == "__main__":
    program.main()
