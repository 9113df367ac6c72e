#!/usr/bin/env python3
"""Runs cluiconfig on files in places as users have them. usage: paths_test.py PROGRAM SHIPPED_DOCUMENT"""

import os
import shutil

import program

LONGEST_CLASSIC_PATH = 260  # of a Windows program that does nothing about it


class Paths(program.TestCase):
    def expect_files_are_read_in(self, directory):
        directory.mkdir(parents=True)
        document = directory / "UIConfig.json"
        shutil.copyfile(program.SHIPPED, document)
        self.assertIn("Axes combinations (521)", self.output("show", str(document)))

        lines = directory / "names.txt"
        lines.write_bytes("µΩ abc\nxyz\n".encode())
        self.assertEqual(self.output("search", "ab", str(lines)), "µΩ abc\n")

    def test_with_blanks_and_signs_that_shells_take_for_their_own(self):
        self.expect_files_are_read_in(self.directory / "My cells (2024) & more" / "50 %1 $HOME #2 'x'")

    def test_with_letters_of_any_alphabet(self):
        self.expect_files_are_read_in(self.directory / "Prüfstände µΩ" / "電池試験" / "тест 🔋")

    def test_longer_than_the_classic_limit_of_windows(self):
        directory = self.directory
        while len(str(directory)) <= LONGEST_CLASSIC_PATH:
            directory /= "a directory of cells that were cycled until they failed"
        self.expect_files_are_read_in(directory)

    def test_message_names_the_path_as_it_was_given(self):
        path = os.fspath(self.directory / "Prüfstand" / "fehlt.json")
        self.assertIn(f'"{path}"', self.message(1, "show", path))


if __name__ == "__main__":
    program.main()
