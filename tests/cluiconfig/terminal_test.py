#!/usr/bin/env python3
"""Checks that nothing of a document or a command line reaches people unseen, and that tables fit the terminal.
usage: terminal_test.py PROGRAM SHIPPED_DOCUMENT"""

import json
import os
import unicodedata

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
        document["Process Formula"]["X Formulas"] = [{"Displayed Formula": text, "Compiled Formula": text}]
        document["Recipe"]["GraphCommand"] = [{"UITitle": text, "Param1": text}]
        return document

    def expect_seen(self, output, expected=HOSTILE):
        self.assertEqual(unseen_in(output), [])
        self.assertIn(escaped(expected), output)

    def test_of_a_document_is_shown_escaped(self):
        path = self.file("hostile.json", self.hostile())
        for section in ("Representations", "Filters", "Colors", "Statistics", "Recipe", "Process Formula"):
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


def cells(text):
    """How many cells of a terminal a text takes, by what Python knows of Unicode."""
    return sum(0 if unicodedata.category(each) in ("Mn", "Me") or "\u1160" <= each <= "\u11ff" or "\ud7b0" <= each <= "\ud7ff"
               else 2 if unicodedata.east_asian_width(each) in "WF" else 1 for each in text)


class Columns(program.TestCase):
    COMMANDS = (["show"], ["show", "--list-sections"], ["axes"], ["axes", "Frequency / Hz"], ["units"],
                ["axes", "Frequency / Hz", "Phase / deg"], ["units", "Specific differential capacity rate"])

    def changed(self):
        document = program.shipped()
        document["Representations"][0]["Name"] = "A name that is so long that no line of a terminal holds it together with " \
            "what became of the row, not to speak of anything else"
        document["Recipe"]["GraphCommand"][0]["Param1"] = "電池" * 50
        return self.file("changed.json", document)

    @program.needs_posix("a pseudo terminal")
    def test_fit_the_terminal_without_losing_a_word(self):
        document = self.changed()
        commands = [(0, command) for command in self.COMMANDS]
        commands += [(0, ["show", document]), (1, ["diff", str(program.SHIPPED), document])]
        for exit_code, command in commands:
            whole = self.run_program(*command).stdout
            for columns in (20, 40, 80, 132):
                shown = self.on_terminal(*command, columns=columns, exit_code=exit_code, environment={"NO_COLOR": "1"})
                for line in shown.splitlines():
                    if line.startswith("  ") and columns > 20:  # where six columns have three cells each
                        self.assertLessEqual(cells(line), columns, (command, line))
                self.assertEqual(sorted("".join(shown.split())), sorted("".join(whole.split())), command)

    @program.needs_posix("a pseudo terminal")
    def test_are_as_wide_as_their_texts_where_that_fits_or_is_asked_for(self):
        for exit_code, command in ((0, ["show"]), (0, ["axes"]), (0, ["units", "Voltage"]),
                                   (1, ["diff", str(program.SHIPPED), self.changed()])):
            whole = self.run_program(*command).stdout
            self.assertEqual(self.run_program(*command, env={**os.environ, "COLUMNS": "40"}).stdout, whole)
            self.assertGreater(max(map(cells, whole.splitlines())), 0)
            plain = {"NO_COLOR": "1"}
            self.assertEqual(self.on_terminal(*command, "--wide", columns=40, exit_code=exit_code, environment=plain), whole)
            self.assertEqual(self.on_terminal(*command, columns=2000, exit_code=exit_code, environment=plain), whole)

    @program.needs_posix("a pseudo terminal")
    def test_go_by_the_variable_before_the_terminal(self):
        representations = lambda **options: self.on_terminal("show", "--section", "Representations", **options)
        self.assertEqual(representations(columns=200, environment={"COLUMNS": "60"}), representations(columns=60))
        self.assertNotEqual(representations(columns=60), representations(columns=80))
        for nonsense in ("", "0", "-5", "wide"):
            self.assertEqual(representations(columns=60, environment={"COLUMNS": nonsense}), representations(columns=60))
        self.assertEqual(representations(columns=0), representations(columns=80))

    @program.needs_posix("a pseudo terminal")
    def test_share_the_room_and_keep_words_and_units_together(self):
        self.assertEqual(self.on_terminal("show", "--section", "Ragone Plot").splitlines()[1:5], [
            "  Graph         Curve         X             Y             Category  Type",
            "  Areal         Areal energy  Areal Power   Areal Energy  Ragone    Line and",
            "                over areal    / mW/cm2      / mWh/cm2               markers",
            "                power"])

    @program.needs_posix("a pseudo terminal")
    def test_put_values_that_were_joined_below_their_row(self):
        self.assertEqual(self.on_terminal("show", "--section", "Axes combinations").splitlines()[1:6], [
            "  X                          Category      X scale      Y scale      Orthonormal",
            "      Y",
            "  Test Time / s              Potentiostat  linear       linear       no",
            "      Voltage / V, Working Electrode Potential / V, Counter Electrode Potential",
            "      / V"])

    @program.needs_posix("a pseudo terminal")
    def test_leave_room_for_swatches_behind_the_names_of_colours(self):
        document = program.shipped()
        document["Colors"]["Custom colors"] = [{"name": "A black for the prints that leave the house", "RGB": [0, 0, 0]}]
        document["Colors"]["Default colors"] = {}
        shown = self.on_terminal("show", "--section", "Palette", self.file("colours.json", document), columns=40,
                                 environment={"COLORTERM": "truecolor"})
        self.assertEqual(shown.splitlines()[2:], ["  A black for the        #000000  \x1b[48;2;0;0;0m      \x1b[0m",
                                                  "  prints that leave the", "  house"])

    def test_begin_where_those_above_begin_whatever_the_alphabet(self):
        characters = [chr(code) for code in range(0x21, 0x110000)
                      if unicodedata.category(chr(code)) not in ("Cc", "Cf", "Cs", "Cn", "Co", "Zl", "Zp", "Zs")]
        texts = ["a" + "".join(characters[i:i + 8]) for i in range(0, len(characters), 8)]
        document = program.shipped()
        document["Process Formula"] = {"X Formulas": [{"Displayed Formula": text, "Compiled Formula": "|"} for text in texts],
                                       "Y1 Formulas": [], "Y2 Formulas": []}
        path = self.file("formulas.json", document)
        lines = self.output("show", path, "--section", "Process Formula").split("\n")[2:-1]
        self.assertEqual(len(lines), len(texts))
        self.assertGreater(len(texts), 15_000)
        self.assertIn(texts[1000], lines[1000])
        self.assertEqual(len({cells(line) for line in lines}), 1)


if __name__ == "__main__":
    program.main()
