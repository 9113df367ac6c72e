#!/usr/bin/env python3
"""Gives cluiconfig large documents, and no more memory and time than they deserve; bench/large.py has larger ones.
usage: large_test.py PROGRAM SHIPPED_DOCUMENT"""

import json
import pathlib

import program

MOST_MEMORY = 400_000_000  # of addresses; 300 suffice


@program.needs_posix("limits on memory")
class Large(program.TestCase):
    def setUp(self):
        super().setUp()
        import resource
        self.options = {"preexec_fn": lambda: resource.setrlimit(resource.RLIMIT_AS, (MOST_MEMORY, MOST_MEMORY))}
        if self.run_program("--version", **self.options).returncode != 0:
            self.skipTest("needs a program that begins with little memory, which sanitizers take")

    def document(self, **more):
        return self.file("large.json", json.dumps({**program.shipped(), **more}, ensure_ascii=False))

    def expect(self, path, **exit_codes):
        """The exit codes of all commands that read a document; returns what the check says."""
        arguments = {"check": ["check", path], "show": ["show", path], "axes": ["axes", path, "Test Time / s"],
                     "diff": ["diff", str(program.SHIPPED), path], "format": ["format", "--in-place", path]}
        for command, words in arguments.items():
            with self.subTest(command):
                result = self.run_program(*words, **self.options)
                self.assertEqual(result.returncode, exit_codes.get(command, 0), result.stderr[:1000])
                self.assertLess(len(result.stderr), 1000)
                said = result.stdout if command == "check" else said
        return said

    def test_text_on_one_line(self):
        said = self.expect(self.document(Comment="\\x" * 10_000_000))
        self.assertIn('"Comment"', said)
        self.assertLess(len(said), 1000)

    def test_key(self):
        name = "ä" * 2_000_000
        said = self.expect(self.document(**{name: 1}))
        self.assertIn("/ä", said)
        self.assertLess(len(said), 5000)

    def test_many_unknown_keys(self):
        said = self.expect(self.document(**{f"Comment {i}": i for i in range(200_000)}))
        self.assertLess(len(said.splitlines()), 300)

    def test_long_key_above_many_findings_costs_no_more_than_a_short_one(self):
        import resource
        faulty = {"Title": 1, "Category": 2, "X": 3}

        def processor_time(title):
            path = self.document(**{"Ragone Plot": {title: [faulty] * 10_000}, "Representations": [5]})
            before = resource.getrusage(resource.RUSAGE_CHILDREN).ru_utime
            result = self.run_program("check", path, **self.options)
            self.assertEqual(result.returncode, 1, result.stderr[:1000])
            self.assertIn("more findings of this rule follow", result.stdout)
            return resource.getrusage(resource.RUSAGE_CHILDREN).ru_utime - before

        self.assertLess(processor_time("x" * 1_000_000), 10 * processor_time("x"))

    def test_many_lists(self):
        self.expect(self.document(Comment=[["x", 1.5, True, None]] * 200_000))

    def test_more_than_there_is_memory_for_is_said_and_leaves_the_file_as_it_is(self):
        import resource
        path = pathlib.Path(self.file("large.json", "[" + "1, " * 30_000_000 + "1]"))
        limit = lambda: resource.setrlimit(resource.RLIMIT_AS, (MOST_MEMORY // 2, MOST_MEMORY // 2))
        self.assertEqual(self.message(2, "format", "--in-place", str(path), preexec_fn=limit), "There is not enough memory for that.\n")
        self.assertEqual((path.stat().st_size, len(list(self.directory.iterdir()))), (90_000_003, 1))

    def test_deep_nesting_is_refused(self):
        path = pathlib.Path(self.document())
        path.write_text(path.read_text(encoding="utf-8")[:-1] + ', "Comment": ' + "[" * 100_000 + "]" * 100_000 + "}",
                        encoding="utf-8")
        before = path.read_bytes()
        said = self.expect(str(path), check=1, show=1, axes=1, diff=2, format=2)
        self.assertIn("refused", said)
        self.assertLess(len(said), 1000)
        self.assertEqual(path.read_bytes(), before)


if __name__ == "__main__":
    program.main()
