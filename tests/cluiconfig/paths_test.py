#!/usr/bin/env python3
"""Runs cluiconfig on files in places as users have them. usage: paths_test.py PROGRAM SHIPPED_DOCUMENT"""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

PROGRAM = ""
SHIPPED = pathlib.Path()
LONGEST_CLASSIC_PATH = 260  # of a Windows program that does nothing about it


def cluiconfig(*arguments):
    return subprocess.run([PROGRAM, *arguments], capture_output=True, text=True, encoding="utf-8", timeout=60)


class Paths(unittest.TestCase):
    def setUp(self):
        directory = tempfile.TemporaryDirectory()
        self.addCleanup(directory.cleanup)
        self.root = pathlib.Path(directory.name)

    def expect_files_are_read_in(self, directory):
        directory.mkdir(parents=True)
        document = directory / "UIConfig.json"
        shutil.copyfile(SHIPPED, document)
        shown = cluiconfig("show", str(document))
        self.assertEqual((shown.returncode, shown.stderr), (0, ""))
        self.assertIn("Axes combinations (521)", shown.stdout)

        lines = directory / "names.txt"
        lines.write_bytes("µΩ abc\nxyz\n".encode())
        found = cluiconfig("search", "ab", str(lines))
        self.assertEqual((found.returncode, found.stdout, found.stderr), (0, "µΩ abc\n", ""))

    def test_with_blanks_and_signs_that_shells_take_for_their_own(self):
        self.expect_files_are_read_in(self.root / "My cells (2024) & more" / "50 %1 $HOME #2 'x'")

    def test_with_letters_of_any_alphabet(self):
        self.expect_files_are_read_in(self.root / "Prüfstände µΩ" / "電池試験" / "тест 🔋")

    def test_longer_than_the_classic_limit_of_windows(self):
        directory = self.root
        while len(str(directory)) <= LONGEST_CLASSIC_PATH:
            directory /= "a directory of cells that were cycled until they failed"
        self.expect_files_are_read_in(directory)

    def test_message_names_the_path_as_it_was_given(self):
        path = os.fspath(self.root / "Prüfstand" / "fehlt.json")
        shown = cluiconfig("show", path)
        self.assertEqual((shown.returncode, shown.stdout), (1, ""))
        self.assertIn(f'"{path}"', shown.stderr)


if __name__ == "__main__":
    PROGRAM, SHIPPED = sys.argv[1], pathlib.Path(sys.argv[2])
    unittest.main(argv=sys.argv[:1])
