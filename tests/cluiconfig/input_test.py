#!/usr/bin/env python3
"""Gives cluiconfig documents on standard input, and files whose names are no text. usage: input_test.py PROGRAM
SHIPPED_DOCUMENT"""

import json
import os
import subprocess
import tempfile
import unittest

import program


class StandardInput(program.TestCase):
    def setUp(self):
        super().setUp()
        document = program.shipped()
        document["Colors"]["Custom colors"].append({"name": "Rust", "RGB": [183, 65, 14]})
        self.document = json.dumps(document)
        self.path = self.file("my.json", self.document)

    def given(self, text, *arguments):
        return self.run_program(*arguments, input=text)

    def test_is_a_document_like_any_other(self):
        for arguments in (["check", "DOCUMENT"], ["check", "--format", "json", "DOCUMENT"], ["show", "DOCUMENT"], ["axes", "DOCUMENT"],
                          ["axes", "DOCUMENT", "Frequency / Hz"], ["format", "DOCUMENT"], ["format", "--check", "DOCUMENT"],
                          ["diff", "DOCUMENT", str(program.SHIPPED)], ["diff", str(program.SHIPPED), "DOCUMENT"]):
            with self.subTest(arguments):
                put = lambda name: [name if word == "DOCUMENT" else word for word in arguments]
                result, expected = self.given(self.document, *put("-")), self.run_program(*put(self.path))
                self.assertEqual(result.returncode, expected.returncode)
                for given, of_file in ((result.stdout, expected.stdout), (result.stderr, expected.stderr)):
                    self.assertEqual(given, of_file.replace(self.path, "<standard input>"))
                self.assertNotEqual(result.stdout + result.stderr, "")

    def test_is_called_so_in_messages(self):
        broken = '{\n  "Colors": [,]\n}'
        place = '"<standard input>" is not valid JSON: line 2, column 14: '
        self.assertIn(place, self.message(1, "show", "-", input=broken))
        self.assertIn(f'Cannot compare "<standard input>": {place}', self.message(2, "diff", "-", self.path, input=broken))
        self.assertIn('"<standard input>" is not valid JSON', self.message(2, "format", "-", input=broken))
        self.assertEqual(self.message(1, "show", "-", input=""), '"<standard input>" is empty\n')
        result = self.given(broken, "check", "-")
        self.assertEqual(result.returncode, 1)
        lines = result.stdout.splitlines()
        self.assertEqual([line.split(": ")[0] for line in lines[:2]], ["<standard input>", "<standard input>:2:14"])
        self.assertTrue(all(line.startswith("<standard input>:") for line in lines))
        self.assertIn(place, lines[0])
        (report,) = json.loads(self.given(broken, "check", "--format", "json", "-").stdout)
        self.assertEqual(report["file"], "<standard input>")
        self.assertIn(place, report["error"])

    def test_is_read_once(self):
        catalogue = (program.SHIPPED.parent / "DataArrays.json").read_text(encoding="utf-8")
        for arguments in (["diff", "-", "-"], ["check", "-", "-"], ["show", "-", "--catalogue", "-"]):
            result = self.given(catalogue, *arguments)
            self.assertEqual((result.returncode, result.stdout), (2, ""))
            self.assertIn('"-" is named twice', result.stderr)

    def test_cannot_be_replaced(self):
        self.assertIn("Standard input cannot be replaced", self.message(2, "format", "--in-place", "-", input=self.document))

    def test_is_a_catalogue_and_a_list_of_lines_as_well(self):
        catalogue = program.SHIPPED.parent / "DataArrays.json"
        result = self.given(catalogue.read_text(encoding="utf-8"), "show", "--catalogue", "-", self.path)
        self.assertEqual((result.returncode, result.stdout), (0, self.output("show", self.path)))
        self.assertEqual(self.given("abc\nxyz\n", "search", "ab", "-").stdout, "abc\n")

    @program.needs_posix("a directory for temporary files of its own")
    def test_leaves_no_file_behind(self):
        with tempfile.TemporaryDirectory() as directory:
            environment = {**os.environ, "TMPDIR": directory, "TEMP": directory, "TMP": directory}
            for text in (self.document, "[", "[1]"):
                for command in ("check", "show", "format"):
                    self.run_program(command, "-", input=text, env=environment)
            self.assertEqual(os.listdir(directory), [])

    @program.needs_posix("a directory for temporary files of its own")
    def test_that_cannot_be_kept_is_an_error(self):
        result = self.run_program("show", "-", input=self.document, env={**os.environ, "TMPDIR": self.path})
        self.assertEqual((result.returncode, result.stdout), (2, ""))
        self.assertIn("Cannot make a temporary directory", result.stderr)

    @unittest.skipUnless(os.name == "posix", "needs a directory that can be opened")
    def test_that_cannot_be_read_is_an_error(self):
        directory = os.open(self.directory, os.O_RDONLY)
        try:
            for command in ("check", "show", "format"):
                self.assertIn("standard input: ", self.message(2, command, "-", stdin=directory))
        finally:
            os.close(directory)

    @program.needs_posix("a named pipe")
    def test_is_advised_where_a_pipe_is_named(self):
        pipe = str(self.directory / "pipe")
        os.mkfifo(pipe)
        for arguments in (["show", pipe], ["diff", self.path, pipe], ["format", pipe], ["show", "--catalogue", pipe]):
            self.assertIn('write "-" for standard input', self.message(2, *arguments))
        self.assertIn('write "-" for standard input', self.given(self.document, "check", pipe).stdout)
        self.assertIn('write "-" for standard input', self.given(self.document, "show", "/dev/stdin").stderr)


@program.needs_posix("names of files that are no text")
class NamesThatAreNoText(program.TestCase):
    LOCALES = ("C", "C.UTF-8")

    def setUp(self):
        super().setUp()
        self.name = b"Pr\xfcfstand.json"  # as an older system would write it
        try:
            (self.directory / os.fsdecode(self.name)).write_bytes(program.SHIPPED.read_bytes())
        except OSError as error:
            self.skipTest(f"the file system takes no such name: {error}")

    def run_in_every_locale(self, *arguments):
        results = [subprocess.run([program.PROGRAM, *arguments], cwd=self.directory, capture_output=True, timeout=120,
                                  env={**os.environ, "LC_ALL": locale}) for locale in self.LOCALES]
        results = [(result.returncode, result.stdout.decode(), result.stderr.decode()) for result in results]
        self.assertEqual(results[0], results[1])
        return results[0]

    def test_name_documents_like_any_other(self):
        shipped = str(program.SHIPPED)
        for arguments in (["show"], ["axes"], ["format"], ["format", "--check"], ["diff", shipped]):
            result = self.run_in_every_locale(*arguments, self.name)
            self.assertEqual(result, (0, self.output(*arguments, shipped), ""))
        self.assertEqual(self.run_in_every_locale("check", self.name), (0, "Pr\ufffdfstand.json: loads\n", ""))
        self.assertEqual(self.run_in_every_locale("search", "Nyquist plot", self.name)[0::2], (0, ""))

    def test_name_catalogues(self):
        (self.directory / os.fsdecode(self.name)).write_bytes((program.SHIPPED.parent / "DataArrays.json").read_bytes())
        self.assertEqual(self.run_in_every_locale("show", "--catalogue", self.name), (0, self.output("show"), ""))

    def test_are_shown_as_well_as_it_goes(self):
        (self.directory / os.fsdecode(self.name)).write_text("[")
        for exit_code, arguments in ((1, ["show"]), (2, ["format"]), (2, ["diff", str(program.SHIPPED)])):
            code, output, message = self.run_in_every_locale(*arguments, self.name)
            self.assertEqual((code, output), (exit_code, ""))
            self.assertIn('"Pr\ufffdfstand.json" is not valid JSON', message)

    def test_that_are_nowhere_or_no_files_are_said(self):
        os.mkdir(os.fsencode(self.directory) + b"/d\xfc")
        os.mkfifo(os.fsencode(self.directory) + b"/p\xfc")
        for name, exit_code, reason in ((b"x\xfc", 1, "No such file or directory"), (b"d\xfc", 1, "it is a directory"),
                                        (b"p\xfc", 2, "it is a pipe or a device")):
            code, output, message = self.run_in_every_locale("show", name)
            self.assertEqual((code, output), (exit_code, ""))
            self.assertIn(f'Cannot open "{name.decode(errors="replace")}": {reason}', message)

    def test_are_not_replaced(self):
        before = sorted(os.listdir(os.fsencode(self.directory)))
        code, output, message = self.run_in_every_locale("format", "--in-place", self.name)
        self.assertEqual((code, output), (2, ""))
        self.assertIn("whose name is no UTF-8: rename it", message)
        self.assertEqual(sorted(os.listdir(os.fsencode(self.directory))), before)


if __name__ == "__main__":
    program.main()
