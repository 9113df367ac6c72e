#!/usr/bin/env python3
"""Runs `cluiconfig format` as people do. usage: format_test.py PROGRAM SHIPPED_DOCUMENT"""

import errno
import json
import os
import pathlib
import random
import subprocess
import unittest

import program

WIDTH = 116


def tree(text):
    """What a JSON text says, with the order of members, repeated keys, and numbers as they are written."""
    return json.loads(text, object_pairs_hook=lambda members: ("object", members), parse_int=lambda digits: ("number", digits),
                      parse_float=lambda digits: ("number", digits))


class RandomText:
    """Random JSON texts, also such as no program would write."""

    def __init__(self, seed):
        self.random = random.Random(seed)

    def blank(self):
        return "".join(self.random.choices(" \n\t\r", k=self.random.choice((0, 0, 0, 1, 3))))

    def string(self):
        letters = ["a", "Y", " ", "{", "}", "[", "]", ":", ",", "\\\"", "\\\\", "\\/", "\\n", "\\u00e9", "\\u0000", "µ", "日", "😀",
                   "\\ud83d\\ude00", "//"]
        return '"' + "".join(self.random.choices(letters, k=self.random.choice((0, 1, 5, 12, 40)))) + '"'

    def number(self):
        return self.random.choice(("0", "-0", "1", "-17", "1.0", "1.10", "1e5", "1E+05", "0.1e-7",
                                   "123456789012345678901234567890", "3.14159265358979323846264338327950288"))

    def value(self, depth):
        kind = self.random.choice(("object", "array", "string", "number", "word")) if depth > 0 else "string"
        if kind in ("object", "array"):
            count = self.random.choice((0, 1, 2, 3, 5, 12))
            items = [self.blank() + self.value(depth - 1) + self.blank() for _ in range(count)]
            if kind == "array":
                return "[" + ",".join(items) + self.blank() + "]"
            keys = [self.blank() + self.random.choice((self.string(), '"Name"')) + self.blank() for _ in range(count)]
            return "{" + ",".join(f"{key}:{item}" for key, item in zip(keys, items)) + self.blank() + "}"
        return {"string": self.string, "number": self.number,
                "word": lambda: self.random.choice(("true", "false", "null"))}[kind]()


class Format(program.TestCase):
    def formatted(self, text):
        return self.output("format", self.file("document.json", text))

    def test_shipped_document_has_the_layout(self):
        self.assertEqual(self.output("format", str(program.SHIPPED)), program.SHIPPED.read_text(encoding="utf-8"))
        self.assertEqual(self.output("format", "--check", str(program.SHIPPED)), "")

    def test_shipped_document_comes_back_from_any_other_layout(self):
        document = program.shipped()
        for text in (json.dumps(document, ensure_ascii=False, separators=(",", ":")),
                     json.dumps(document, ensure_ascii=False, indent=7),
                     json.dumps(document, ensure_ascii=False, indent="\t").replace("\n", "\r\n")):
            self.assertEqual(self.formatted(text), program.SHIPPED.read_text(encoding="utf-8"))

    def test_lists_of_plain_values_stand_on_a_line_where_they_fit(self):
        self.assertEqual(self.formatted('[1,"two" ,true,\nnull]'), '[1, "two", true, null]\n')
        self.assertEqual(self.formatted("[[1,2],[],[3]]"), "[\n    [1, 2],\n    [],\n    [3]\n]\n")
        fits, wide = "x" * (WIDTH - 4), "x" * (WIDTH - 3)
        self.assertEqual(self.formatted(f'["{fits}"]'), f'["{fits}"]\n')
        self.assertEqual(self.formatted(f'["{wide}"]'), f'[\n    "{wide}"\n]\n')
        self.assertEqual(self.formatted(f'{{"a":["{fits}"]}}'), f'{{\n    "a": [\n        "{fits}"\n    ]\n}}\n')

    def test_columns_are_characters(self):
        fits = "Ω" * (WIDTH - 4)
        self.assertEqual(self.formatted(f'["{fits}"]'), f'["{fits}"]\n')

    def test_objects_in_lists_fill_lines(self):
        self.assertEqual(self.formatted('[{"a":1,"b":[2,3]},{}]'), '[\n    { "a": 1, "b": [2, 3] },\n    {}\n]\n')
        first, second = "x" * 50, "y" * 50
        self.assertEqual(self.formatted(f'[{{"a":"{first}","b":"{second}","c":3}}]'),
                         f'[\n    {{ "a": "{first}",\n      "b": "{second}", "c": 3 }}\n]\n')

    def test_objects_in_lists_have_a_line_for_each_member_where_one_does_not_fit(self):
        wide = "x" * 200
        self.assertEqual(self.formatted(f'[{{"a":"{wide}","b":2}}]'),
                         f'[\n    {{\n        "a": "{wide}",\n        "b": 2\n    }}\n]\n')
        self.assertEqual(self.formatted('[{"a":[{"b":1}]}]'),
                         '[\n    {\n        "a": [\n            { "b": 1 }\n        ]\n    }\n]\n')

    def test_other_objects_have_a_line_for_each_member(self):
        self.assertEqual(self.formatted('{"a":{"b":{}},"c":[]}'),
                         '{\n    "a": {\n        "b": {}\n    },\n    "c": []\n}\n')

    def test_nothing_but_blanks_changes(self):
        text = '{"Title":"\\u00b5A \\/ µA","Title":1.10E+05,"unknown":-0,"big":123456789012345678901234567890}'
        self.assertEqual(self.formatted(text), '{\n    "Title": "\\u00b5A \\/ µA",\n    "Title": 1.10E+05,\n'
                         '    "unknown": -0,\n    "big": 123456789012345678901234567890\n}\n')

    def test_numbers_of_any_size_are_kept(self):
        for number in ("7" * 400 + "e-300", "-" + "7" * 400, "0." + "7" * 400, "1e400", "-1E+4000000000000", "1e-400"):
            self.assertEqual(self.formatted('{"a":%s,"b":[%s]}' % (number, number)),
                             '{\n    "a": %s,\n    "b": ' % number
                             + ("[%s]" % number if len(number) < 100 else "[\n        %s\n    ]" % number) + "\n}\n")
        for text in ("7" * 400 + "e", "7" * 400 + "..5", "1e4-", "07e1", "-e5"):
            self.assertIn("line 1, column ", self.message(2, "format", self.file("number.json", "[%s]" % text)))

    def test_halves_of_surrogate_pairs_are_kept(self):
        for text in (r'"\ud800"', r'"\uDC00\uD800 \\ud800"', r'"\ud834\udd1e\ud834"', r'"\\\ud800\"\udfff"'):
            self.assertEqual(self.formatted('{%s:%s}' % (text, text)), '{\n    %s: %s\n}\n' % (text, text))
        for text in (r'"\ud80"', r'"\ud80', r'"\ud8', r'"\u', '"\\', r'"\ud80g"', r'"\U0041"'):
            self.assertIn("line 1, column ", self.message(2, "format", self.file("text.json", "[%s]" % text)))

    def test_byte_order_mark_goes(self):
        self.assertEqual(self.formatted(b"\xef\xbb\xbf[ ]"), "[]\n")

    def test_random_texts_keep_what_they_say_and_have_one_layout(self):
        count = int(os.environ.get("CLUICONFIG_RANDOM_TEXTS", "60"))
        for seed in range(count):
            with self.subTest(seed=seed):
                text = RandomText(seed).value(5)
                formatted = self.formatted(text)
                self.assertEqual(tree(formatted), tree(text))
                self.assertEqual(self.formatted(formatted), formatted)
                without_blanks = json.dumps(json.loads(text), ensure_ascii=False, separators=(",", ":"))
                self.assertEqual(self.formatted(without_blanks),
                                 self.formatted(json.dumps(json.loads(text), ensure_ascii=False, indent=3)))
                for line in formatted.splitlines():
                    if len(line) > WIDTH:  # then it holds one value, which cannot be cut
                        value = self.only_value(line)
                        self.assertTrue(value in ([], {}) or not isinstance(value, (dict, list)), line)

    def only_value(self, line):
        line = line.strip().rstrip(",")
        line += {"{": "}", "[": "]"}.get(line[-1], "")
        try:
            return json.loads(line)
        except ValueError:
            (value,) = json.loads("{" + line + "}").values()
            return value

    def test_configuration_is_the_same_before_and_after(self):
        for seed in range(5):
            shuffled = random.Random(seed)
            document = program.shipped()
            sections = list(document)
            shuffled.shuffle(sections)
            document = {section: document[section] for section in sections}
            document["Unknown " + str(seed)] = [{"x": 1.50}]
            path = self.file("document.json", json.dumps(document, indent=seed))
            before = self.output("show", path)
            self.assertEqual(self.output("format", "--in-place", path), "")
            self.assertEqual(self.output("show", path), before)
            self.assertEqual(json.loads(pathlib.Path(path).read_text(encoding="utf-8")), document)

    def test_check_tells_another_layout_by_exit_code_1_and_changes_nothing(self):
        path = self.file("document.json", '{"a":1}')
        self.assertIn(f'"{path}" has another layout', self.message(1, "format", path, "--check"))
        self.assertEqual(pathlib.Path(path).read_text(), '{"a":1}')
        for text in ('{\n    "a": 1\n}\n', "[]\n"):
            self.assertEqual(self.output("format", "--check", self.file("document.json", text)), "")
        for text in ('{\n    "a": 1\n}', '{\n    "a": 1\n}\n\n', '{\r\n    "a": 1\r\n}\r\n'):
            self.message(1, "format", "--check", self.file("document.json", text))

    def test_in_place_leaves_no_other_file(self):
        path = pathlib.Path(self.file("document.json", '{"a":1}'))
        self.assertEqual(self.output("format", "--in-place", str(path)), "")
        self.assertEqual(path.read_bytes(), b'{\n    "a": 1\n}\n')
        self.assertEqual(os.listdir(self.directory), ["document.json"])

    @program.needs_posix("permissions of POSIX")
    def test_in_place_keeps_permissions(self):
        path = pathlib.Path(self.file("document.json", '{"a":1}'))
        path.chmod(0o640)
        permissions = path.stat().st_mode
        self.assertEqual(self.output("format", "--in-place", str(path)), "")
        self.assertEqual(path.stat().st_mode, permissions)

    def test_in_place_leaves_a_file_alone_that_has_the_layout(self):
        path = self.file("document.json", "[1, 2]\n")
        os.utime(path, ns=(10**18, 10**18))
        before = os.stat(path)
        self.assertEqual(self.output("format", "--in-place", path), "")
        after = os.stat(path)
        self.assertEqual((after.st_ino, after.st_mtime_ns), (before.st_ino, before.st_mtime_ns))

    def test_options_that_exclude_each_other_are_refused(self):
        self.assertIn("--check", self.message(2, "format", "--check", "--in-place", str(program.SHIPPED)))
        self.message(2, "format")

    def test_what_is_no_json_is_refused_with_line_and_column(self):
        for text, reason in ((b'{\n  "a": [1,]\n}', "line 2, column 11"), (b'["\xff"]', "line 1, column 3: Invalid encoding"),
                             (b'["\xed\xa0\x80"]', "Invalid encoding"), (b'["\xc0\xaf"]', "Invalid encoding"),
                             (b'["\\ud80"]', "line 1, column 3: "), (b'["a\tb"]', "line 1, column 4: a control character in a text"),
                             (b'{"a":1 "b":2}', "Missing a comma"), (b"", "empty"), (b" \n", "empty"), (b"[1] 2", "column 5"),
                             (b'["\xc2\xb5" 1]', "column 6"), (b"[NaN]", "column 2"), (b"[1] // why", "column 5"),
                             ("[1]".encode("utf-16"), "line 1, column 1")):
            path = self.file("document.json", text)
            message = self.message(2, "format", path)
            self.assertIn(f'"{path}" is not valid JSON: ', message)
            self.assertIn(reason, message)
            self.assertEqual(self.message(2, "format", "--in-place", path), message)
            self.assertEqual(pathlib.Path(path).read_bytes(), text)

    def test_nothing_behind_a_nul_is_lost(self):
        for text, place in ((b'{"a":1}\0{"lost":2}', "line 1, column 8"), (b'{"a":1}\n\0', "line 2, column 1")):
            path = self.directory / "behind.json"
            path.write_bytes(text)
            self.assertIn(place, self.message(2, "format", "--in-place", str(path)))
            self.assertEqual(path.read_bytes(), text)

    def test_nesting_is_followed_as_deep_as_the_application_does(self):
        deep = self.formatted("[" * 1024 + "]" * 1024)
        self.assertEqual(len(deep.splitlines()), 2 * 1023 + 1)
        self.assertLessEqual(max(map(len, deep.splitlines())), 82)
        for depth in (1025, 10_000, 1_000_000):
            self.assertIn("line 1, column 1025: nested more than 1024 deep",
                          self.message(2, "format", self.file("deep.json", "[" * depth + "]" * depth)))

    def test_document_of_fifty_megabytes(self):
        document = program.shipped()
        entries = document["Axes combinations"]
        document["Axes combinations"] = entries * (50_000_000 // len(json.dumps(entries)))
        path = self.file("large.json", json.dumps(document, ensure_ascii=False))
        self.assertGreater(os.path.getsize(path), 49_000_000)
        self.assertEqual(self.output("format", "--in-place", path), "")
        self.assertEqual(self.output("format", "--check", path), "")
        self.assertEqual(json.loads(pathlib.Path(path).read_text(encoding="utf-8")), document)

    def test_file_that_cannot_be_opened_gives_exit_code_2(self):
        directory = str(self.directory)
        self.assertIn(f'Cannot open "{directory}": it is a directory', self.message(2, "format", directory))
        self.assertIn('Cannot open "missing.json": ', self.message(2, "format", "missing.json"))

    @program.needs_posix("a named pipe")
    def test_pipe_is_refused_instead_of_waited_for(self):
        path = str(self.directory / "pipe")
        os.mkfifo(path)
        self.assertIn("it is a pipe or a device", self.message(2, "format", path))

    @program.needs_posix("permissions of POSIX")
    @unittest.skipIf(os.name == "posix" and os.geteuid() == 0, "needs permissions, which do not bind this user")
    def test_unreadable_file_and_read_only_file_give_exit_code_2(self):
        path = pathlib.Path(self.file("document.json", '{"a":1}'))
        path.chmod(0o400)
        self.assertIn("Cannot write", self.message(2, "format", "--in-place", str(path)))
        path.chmod(0)
        self.assertIn("Cannot open", self.message(2, "format", str(path)))

    @unittest.skipUnless(os.name == "posix", "needs a limit on the size of files")
    def test_disk_that_is_full_leaves_the_file_as_it_was(self):
        import resource
        import signal
        text = json.dumps(list(range(100_000)))
        path = self.file("document.json", text)
        size = len(self.output("format", path))
        inherited = signal.signal(signal.SIGXFSZ, signal.SIG_IGN)  # as on a full disk, writing fails and no signal comes
        try:
            for limit in (0, 1000, size // 2, size - 20_000, size - 5_000, size - 1):
                message = self.message(2, "format", "--in-place", path, restore_signals=False,
                                       preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (limit, limit)))
                self.assertIn(f'Cannot write "{path}", which stays as it is: ', message)
                self.assertIn("General failure" if program.IS_WINDOWS else os.strerror(errno.EFBIG), message)
                self.assertEqual(pathlib.Path(path).read_text(), text)
                self.assertEqual(os.listdir(self.directory), ["document.json"])
            result = self.run_program("format", "--in-place", path, preexec_fn=lambda: resource.setrlimit(
                resource.RLIMIT_FSIZE, (size, size)))
            self.assertEqual((result.returncode, os.path.getsize(path)), (0, size))
        finally:
            signal.signal(signal.SIGXFSZ, inherited)

    @unittest.skipUnless(os.path.exists("/dev/full"), "needs /dev/full")
    def test_output_that_cannot_be_written_is_an_error(self):
        with open("/dev/full", "wb") as full:
            result = subprocess.run([program.PROGRAM, "format", str(program.SHIPPED)], stdout=full, stderr=subprocess.PIPE)
        self.assertEqual(result.returncode, 2)
        self.assertIn(b"standard output: " + os.strerror(errno.ENOSPC).encode(), result.stderr)

    @unittest.skipUnless(os.name == "posix", "needs a POSIX pipe")
    def test_reader_that_goes_away_is_no_error(self):
        process = subprocess.Popen([program.PROGRAM, "format", self.file("long.json", json.dumps(["x" * 60] * 50_000))],
                                   stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        self.assertEqual(process.stdout.readline(), b"[\n")
        process.stdout.close()
        self.assertEqual((process.wait(60), process.stderr.read()), (0, b""))
        process.stderr.close()


if __name__ == "__main__":
    program.main()
