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
