#!/usr/bin/env python3
"""Checks that nothing of a document or a command line reaches people unseen. usage: terminal_test.py PROGRAM
SHIPPED_DOCUMENT"""

import json

import program

# Each with what it would do: a command to the terminal, a forged line, text written backwards, a name like another.
UNSEEN = ["\u001b[31m", "\n", "\r", "\u0000", "\u007f", "\u009b2J", "\u0085", "\u2028", "\u202e", "\u2067", "\u200f", "\u061c",
          "\u200b", "\u200d", "\u2060", "\ufeff", "\u00ad", "\u3164", "\ufe0f", "\U000e0041", "\ud800", "\udc00"]
HOSTILE = "a" + "b".join(UNSEEN) + "c"
SEEN = "Ωμ 電池 🔋 e\u0301 \u05d0"  # letters of all kinds, also such as are written to the left by themselves
# What a command line can take: no NUL, and nothing that has no bytes.
ARGUMENT = "".join(each for each in HOSTILE if each not in "\0\ud800\udc00")


def unseen_in(text):
    return [each for each in text if each != "\n" and any(each in sign[:1] for sign in UNSEEN)]


def escaped(text):
    """As JSON has it, but with letters as they are."""
    return "".join(json.dumps(each)[1:-1].replace("\\n", "\\u000a").replace("\\r", "\\u000d")
                   if unseen_in(each) or each == "\n" else "\\u007f" if each == "\x7f" else each for each in text)


class Unseen(program.TestCase):
    def hostile(self):
        """A document that loads, with hostile texts wherever it may have texts of its own."""
        document = program.shipped()
        text = HOSTILE + SEEN
        document["Representations"][0]["Name"] = text
        document["Filters"]["Tasks"]["Skipped"] = [text]
        document["Colors"]["Custom colors"].append({"name": text, "RGB": [1, 2, 3]})
        document["Colors"]["Default colors"][text] = text
        document["Statistics"][text] = []
        document["Process Formula"]["X Formulas"] = [{"Display": text, "Compile": text}]
        document["Recipe"]["GraphCommand"] = [{"UITitle": text, "Param1": text}]
        return document

    def expect_seen(self, output, expected=HOSTILE):
        self.assertEqual(unseen_in(output), [])
        self.assertIn(escaped(expected), output)

    def test_of_a_document_is_shown_escaped(self):
        path = self.file("hostile.json", self.hostile())
        for section in ("Representations", "Filters", "Colors", "Statistics", "Recipe"):
            output = self.output("show", path, "--section", section)
            self.expect_seen(output, HOSTILE + SEEN)
        for documents in ((str(program.SHIPPED), path), (path, str(program.SHIPPED))):
            self.expect_seen(self.run_program("diff", *documents).stdout, HOSTILE + SEEN)

    def test_of_a_document_is_shown_escaped_by_the_check(self):
        document = self.hostile()
        document[HOSTILE] = 1
        self.expect_seen(self.run_program("check", self.file("hostile.json", document)).stdout)

    def test_of_a_refused_document_is_shown_escaped(self):
        document = program.shipped()
        document["Representations"][0]["Y1"] = HOSTILE
        path = self.file("refused.json", document)
        self.expect_seen(self.message(1, "show", path))
        self.expect_seen(self.message(1, "axes", path))
        self.expect_seen(self.message(2, "diff", path, path))

    def test_of_the_command_line_is_shown_escaped(self):
        name = ARGUMENT if not program.IS_WINDOWS else "a\u202eb"
        for exit_code, arguments in ((1, ["show", name]), (2, ["diff", name, name]), (2, ["format", name]), (1, ["axes", name]),
                                     (2, ["search", "a", name]), (2, ["units", name]), (2, ["show", "--section", name]),
                                     (2, ["show", "--catalogue", name]), (2, ["check", "--rule", name, "x"]),
                                     (2, ["show", "--format", name]), (2, ["show", "--" + name]),
                                     (2, ["show", "x", name]), (2, ["search", "a", "--max", name])):
            with self.subTest(arguments):
                self.expect_seen(self.message(exit_code, *arguments), name)
        self.expect_seen(self.run_program("check", name).stdout, name)

    @program.needs_posix("a pseudo terminal")
    def test_of_json_is_escaped_on_a_terminal_and_stays_the_same_json(self):
        document = self.hostile()
        document[HOSTILE] = 1
        path = self.file("hostile.json", document)
        for exit_code, arguments in ((0, ["show", path]), (1, ["diff", str(program.SHIPPED), path]), (0, ["check", path])):
            shown = self.on_terminal(*arguments, "--format", "json", exit_code=exit_code)
            self.assertEqual(unseen_in(shown), [])
            self.assertEqual(json.loads(shown), json.loads(self.run_program(*arguments, "--format", "json").stdout))

    @program.needs_posix("a pseudo terminal")
    def test_of_lines_that_are_found_is_escaped_on_a_terminal_alone(self):
        line = ARGUMENT.replace("\n", "").encode() + b"\xff"
        path = self.file("lines.txt", line + b"\n")
        self.assertEqual(self.on_terminal("search", "", path), escaped(line.decode(errors="replace")) + "\n")


if __name__ == "__main__":
    program.main()
