#!/usr/bin/env python3
"""Runs `cluiconfig search` as people do: on files, in pipes, on a terminal. usage: search_test.py PROGRAM SHIPPED_DOCUMENT"""

import os
import random
import subprocess
import threading
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


BLOCK = 1 << 19  # bytes that one thread searches at a time
BEGINNINGS = (b"CV", b"cv", b"c-v", b"xcv", b"x cv", b"x_c_v", b"c" * 9 + b"v", b"cyclic voltammetry", b"constant voltage",
              b"open circuit voltage", b"c" + b" " * 40 + b"v", b"v", b"cycle", b"")


def numbered(beginning, number):
    """A line of which there are no two; the number does not count in its score."""
    return b"%s %07d" % (beginning, number)


class LongList(program.TestCase):
    """Lists that several threads search, block by block."""

    @classmethod
    def setUpClass(cls):
        choice = random.Random(1)
        cls.lines = [numbered(choice.choice(BEGINNINGS), number) for number in range(150_000)]
        cls.text = b"\n".join(cls.lines) + b"\n"
        assert len(cls.text) > 5 * BLOCK

    def ranked(self, strategy):
        """What is to be found, by the scores of a short list."""
        output = search("cv", "--scores", "--strategy", strategy,
                        stdin=b"\n".join(numbered(beginning, 0) for beginning in BEGINNINGS)).stdout
        scores = {line: int(score) for score, _, line in (found.partition(b"\t") for found in output.splitlines())}
        self.assertGreater(len(set(scores.values())), 4)
        found = []
        for number, line in enumerate(self.lines):
            score = scores.get(line[:-7] + b"0000000")
            if score is not None:
                found.append((-score, -number))
        return [(-score, self.lines[-number]) for score, number in sorted(found)]

    def expect(self, lines, *arguments, stdin=None, **options):
        result = subprocess.run([program.PROGRAM, "search", *arguments], capture_output=True, timeout=60,
                                **({"input": self.text if stdin is None else stdin} if "stdin" not in options else {}), **options)
        self.assertEqual((result.returncode, result.stderr), (0, b""))
        self.assertTrue(result.stdout == b"".join(line + b"\n" for line in lines), "other lines, or another order")

    def test_order_is_that_of_the_scores_and_then_from_the_last_line_to_the_first(self):
        for strategy in ("technique", "text"):
            with self.subTest(strategy):
                self.expect([b"%d\t%s" % found for found in self.ranked(strategy)], "cv", "--scores", "--strategy", strategy)

    def test_file_and_its_standard_input_give_the_same(self):
        lines = [line for _, line in self.ranked("technique")]
        path = self.file("lines.txt", self.text)
        self.expect(lines, "cv", path, stdin=b"")
        with open(path, "rb") as file:
            result = subprocess.run([program.PROGRAM, "search", "cv"], stdin=file, capture_output=True, timeout=60)
        self.assertEqual((result.returncode, result.stdout == b"".join(line + b"\n" for line in lines)), (0, True))

    def test_max_gives_the_beginning_of_the_same(self):
        lines = [line for _, line in self.ranked("technique")]
        for most in (0, 1, 7, 20_000, len(lines) - 1, len(lines), len(lines) + 1, 2**31 - 1, -1):
            with self.subTest(most):
                self.expect(lines if most < 0 else lines[:most], "cv", f"--max={most}")

    @unittest.skipUnless(hasattr(os, "sched_setaffinity"), "needs processors that can be chosen")
    def test_one_processor_suffices(self):
        one = {min(os.sched_getaffinity(0))}
        self.expect([line for _, line in self.ranked("technique")], "cv", preexec_fn=lambda: os.sched_setaffinity(0, one))

    def test_line_ends_wherever_a_block_does(self):
        count = BLOCK * 2 // 16 + 2
        for shift in range(17):
            with self.subTest(shift):
                lines = [numbered(b"a cv x", number) for number in range(count)]
                self.assertEqual(len(lines[0]) + 2, 16)
                self.expect(reversed(lines), "cv", stdin=b"v" * shift + b"\n" + b"\r\n".join(lines) + b"\r\n")

    def test_last_line_may_lack_its_end_wherever_a_block_ends(self):
        for size in (BLOCK - 1, BLOCK, BLOCK + 1, 2 * BLOCK):
            for end in (b"", b"\r"):
                with self.subTest(size=size, end=end):
                    last = b"b" * (size - 2 - len(end)) + end
                    self.expect([last, b"b"], "b", stdin=b"b\n" + last)

    def test_lines_of_several_blocks_stand_among_short_ones(self):
        long = [b"c" + b"x" * size + b"v" for size in (BLOCK - 1, BLOCK, 3 * BLOCK, 5 * BLOCK + 1)]
        lines = [b"%d\n%s\n%d" % (number, line, number) for number, line in enumerate(long)]
        self.expect(reversed(long), "cv", stdin=b"\n".join(lines) + b"\n")

    def test_empty_lines_are_lines(self):
        self.expect([b""] * 2_000_000, "", stdin=b"\n" * 2_000_000)

    def test_every_line_may_have_a_score_of_its_own(self):
        lines = [b"c" + b"x" * number + b"v" for number in range(2000)]
        self.expect(lines[:236], "cv", "--strategy", "text", "--max", "236", stdin=b"\n".join(reversed(lines)))

    @program.needs_posix("a pipe with a name")
    def test_pipe_with_a_name_is_read_to_its_end(self):
        path = self.directory / "pipe"
        os.mkfifo(path)
        writer = threading.Thread(target=path.write_bytes, args=(self.text,))
        writer.start()
        self.expect([line for _, line in self.ranked("technique")], "cv", str(path), stdin=b"")
        writer.join()

    @unittest.skipUnless(os.path.exists("/proc/filesystems"), "needs files without a size")
    def test_file_that_says_no_size_is_read_to_its_end(self):
        with open("/proc/filesystems", "rb") as file:
            self.expect(reversed(file.read().splitlines()), "", "/proc/filesystems", stdin=b"")

    @unittest.skipUnless(os.path.exists("/proc/self/mem"), "needs a file that opens and does not read")
    @program.needs_posix("a path below /proc")
    def test_file_that_opens_and_does_not_read_is_named_with_exit_code_2(self):
        self.assertEqual(self.message(2, "search", "a", "/proc/self/mem"), "/proc/self/mem: Input/output error\n")

    @program.needs_posix("a file that others change")
    def test_file_may_shrink_and_grow_meanwhile(self):
        path = self.directory / "lines.txt"
        path.write_bytes(self.text)
        done = threading.Event()

        def change():
            choice = random.Random(2)
            while not done.is_set():
                with open(path, "r+b") as file:
                    file.truncate(choice.randrange(len(self.text)))
                    file.write(self.text)
        changing = threading.Thread(target=change)
        changing.start()
        try:
            for _ in range(20):
                result = search("cv", str(path))
                self.assertEqual((result.returncode, result.stderr), (0, b""))
        finally:
            done.set()
            changing.join()


@unittest.skipUnless(hasattr(os, "sched_setaffinity"), "needs processors that can be chosen")
@program.needs_posix("limits on memory")
class LittleMemory(program.TestCase):
    def setUp(self):
        super().setUp()
        import resource
        one = {min(os.sched_getaffinity(0))}

        def limit():
            resource.setrlimit(resource.RLIMIT_AS, (200_000_000, 200_000_000))
            os.sched_setaffinity(0, one)
        self.options = {"preexec_fn": limit}
        if self.run_program("--version").returncode != 0:
            self.skipTest("needs a program that begins with little memory, which sanitizers take")

    def run_program(self, *arguments, **options):
        return program.run(*arguments, **{**self.options, **options})

    def test_suffices_for_a_long_list_of_which_little_is_found(self):
        path = self.file("lines.txt", (b"abc" * 10 + b"\n") * 7_000_000 + b"cv\n")
        self.assertEqual(self.output("search", "cv", path), "cv\n")

    def test_suffices_for_the_best_of_a_long_list(self):
        path = self.file("lines.txt", (b"cv" * 15 + b"\n") * 7_000_000)
        self.assertEqual(self.output("search", "cv", path, "--max", "2"), ("cv" * 15 + "\n") * 2)

    def test_suffices_for_more_than_four_gibibytes(self):
        """A file with holes, whose lines are mostly of NUL."""
        path, distance, count = self.directory / "lines.txt", 1 << 20, 4097
        with open(path, "wb") as file:
            for number in range(count):
                file.seek(number * distance)
                file.write(b"\na%d:cv\n" % number)
        if path.stat().st_blocks * 512 > 1 << 26:
            self.skipTest("needs a file system with holes in files")
        self.assertGreater(path.stat().st_size, 1 << 32)
        self.assertEqual(self.output("search", "cv", str(path)), "".join(f"a{number}:cv\n" for number in reversed(range(count))))

    def test_that_does_not_suffice_is_said_by_one_thread_or_several(self):
        path = self.file("lines.txt", (b"cv" * 15 + b"\n") * 7_000_000)
        import resource
        several = lambda: resource.setrlimit(resource.RLIMIT_AS, (300_000_000, 300_000_000))
        for arguments, limit in ((["cv", path], self.options), (["cv", path], {"preexec_fn": several}),
                                 (["cv", "/dev/zero"], {"preexec_fn": several})):
            with self.subTest(arguments):
                self.assertEqual(self.message(2, "search", *arguments, **limit),
                                 "There is not enough memory for that.\n")


if __name__ == "__main__":
    program.main()
