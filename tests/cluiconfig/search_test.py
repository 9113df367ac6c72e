#!/usr/bin/env python3
"""Runs `cluiconfig search` as people do: on files, in pipes, on a terminal. usage: search_test.py PROGRAM SHIPPED_DOCUMENT"""

import os
import subprocess
import unittest

import program


def search(*arguments, stdin=b""):
    return subprocess.run([program.PROGRAM, "search", *arguments], input=stdin, capture_output=True, timeout=60)


class Search(program.TestCase):
    def expect_output(self, output, *arguments, stdin=b""):
        result = search(*arguments, stdin=stdin)
        self.assertEqual((result.returncode, result.stdout, result.stderr), (0, output, b""))

    def test_best_line_comes_first_with_its_score(self):
        self.expect_output(b"510\tOCV\n428\tocean view\n", "ocv", "--scores", stdin=b"OCV\nocean view\nCV\n")

    def test_among_equal_lines_the_later_one_comes_first(self):
        self.expect_output(b"b cv\na cv\n", "cv", stdin=b"a cv\nb cv\nx\n")

    def test_text_strategy_scores_by_its_own_rule(self):
        self.expect_output(b"139\txAb\n", "ab", "--strategy", "text", "--scores", stdin=b"xAb\n")

    def test_max_cuts_the_list(self):
        lines = b"1a\n2a\n3a\n"
        self.expect_output(b"3a\n2a\n", "a", "--max", "2", stdin=lines)
        self.expect_output(b"", "a", "--max", "0", stdin=lines)
        self.expect_output(b"3a\n2a\n1a\n", "a", "--max", "9", stdin=lines)
        self.expect_output(b"3a\n2a\n1a\n", "a", "--max=-1", stdin=lines)

    def test_lines_end_with_line_feed_or_both_and_the_last_one_may_lack_it(self):
        self.expect_output(b"c\n\nb\na\n", "", stdin=b"a\r\nb\n\r\nc")

    def test_nul_and_bytes_that_are_no_text_pass_through(self):
        self.expect_output(b"x\0\xff\xfey\n", "xy", stdin=b"x\0\xff\xfey\nz\n")

    def test_line_of_thirty_million_bytes_is_a_line(self):
        line = b"a" * 30_000_000 + b"\n"
        self.expect_output(line, "aaa", stdin=line)

    def test_empty_input_gives_empty_output(self):
        self.expect_output(b"", "a")
        self.expect_output(b"", "")

    def test_file_is_read_instead_of_standard_input(self):
        path = self.file("names \N{GREEK SMALL LETTER MU}.txt", b"abc\nxyz\n")
        self.expect_output(b"abc\n", "ab", path, stdin=b"abab\n")

    def test_file_that_cannot_be_read_is_named_with_exit_code_2(self):
        for path in (self.directory / "missing.txt", self.directory):
            self.assertIn(str(path), self.message(2, "search", "a", str(path)))

    @unittest.skipUnless(os.name == "posix", "needs a directory that can be opened")
    def test_standard_input_that_cannot_be_read_is_named_with_exit_code_2(self):
        directory = os.open(self.directory, os.O_RDONLY)
        try:
            reason = "Invalid argument" if program.IS_WINDOWS else "Is a directory"
            self.assertEqual(self.message(2, "search", "a", stdin=directory), f"standard input: {reason}\n")
        finally:
            os.close(directory)

    def test_arguments_that_make_no_sense_are_refused_with_exit_code_2(self):
        for arguments in ((), ("a", "b", "c"), ("a", "-x"), ("a", "--max", "x"), ("a", "--max", ""), ("a", "--max", "0x2"),
                          ("a", "--max", "3000000000"), ("a", "--max", "1", "--max", "2"), ("a", "--strategy")):
            with self.subTest(arguments):
                result = search(*arguments, stdin=b"a\n")
                self.assertEqual((result.returncode, result.stdout), (2, b""))
                self.assertNotEqual(result.stderr, b"")

    def test_max_is_a_decimal_number(self):
        self.expect_output(b"a\n" * 10, "a", "--max", "010", stdin=b"a\n" * 12)

    def test_empty_name_of_a_file_is_no_file(self):
        self.assertEqual(self.message(2, "search", "a", ""), "the name of FILE is empty\n")

    def test_query_may_look_like_anything(self):
        for query in ("--scores", "-5", "search", "[b,c]", "{}", "%1", "\\n"):
            with self.subTest(query):
                self.expect_output(f"<{query}>\n".encode(), "--", query, stdin=f"<{query}>\n<>\n".encode())

    @program.needs_posix("an argument that is no text")
    def test_query_is_taken_byte_by_byte(self):
        self.expect_output(b"x\xffy\n", b"\xff", stdin=b"x\xffy\nx\xef\xbf\xbdy\n")

    def test_scores_may_be_negative(self):
        line = b"b" * 300 + b"a"
        self.expect_output(b"-215\t" + line + b"\n", "a", "--strategy", "text", "--scores", stdin=line + b"\n")

    def test_nul_ends_a_line_for_the_text_strategy_alone(self):
        self.expect_output(b"", "b", "--strategy", "text", stdin=b"a\0b\n")
        self.expect_output(b"a\0b\n", "b", stdin=b"a\0b\n")

    def test_unknown_strategy_is_refused_with_exit_code_2(self):
        self.assertIn("guess", self.message(2, "search", "a", "--strategy", "guess"))

    @unittest.skipUnless(os.name == "posix", "needs a POSIX pipe")
    def test_reader_that_goes_away_is_no_error(self):
        path = self.file("names.txt", b"cyclic voltammetry\n" * 200_000)
        process = subprocess.Popen([program.PROGRAM, "search", "cv", path], stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        self.assertEqual(process.stdout.readline(), b"cyclic voltammetry\n")
        process.stdout.close()
        self.assertEqual((process.wait(60), process.stderr.read()), (0, b""))
        process.stderr.close()

    @unittest.skipUnless(os.path.exists("/dev/full"), "needs /dev/full")
    def test_output_that_cannot_be_written_is_an_error(self):
        with open("/dev/full", "wb") as full:
            result = subprocess.run([program.PROGRAM, "search", "a"], input=b"a\n", stdout=full, stderr=subprocess.PIPE)
        self.assertEqual(result.returncode, 2)
        self.assertIn(b"standard output", result.stderr)

    @unittest.skipUnless(os.name == "posix", "needs a pseudo terminal")
    def test_from_a_terminal_the_shipped_techniques_are_searched(self):
        try:
            controller, terminal = os.openpty()
        except OSError as error:
            self.skipTest(f"no pseudo terminal to be had here: {error}")
        try:
            result = subprocess.run([program.PROGRAM, "search", "open circuit volt", "--max", "1"], stdin=terminal, capture_output=True,
                                    timeout=60)
            everything = subprocess.run([program.PROGRAM, "search", ""], stdin=terminal, capture_output=True, timeout=60)
        finally:
            os.close(controller)
            os.close(terminal)
        self.assertEqual((result.returncode, result.stdout), (0, b"Open circuit voltage, OCV, rest potential\n"))
        lines = everything.stdout.decode().splitlines()
        self.assertGreaterEqual(len(lines), 80)
        self.assertTrue(all(len(line.split(", ")) == 3 for line in lines))


if __name__ == "__main__":
    program.main()
