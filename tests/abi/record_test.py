#!/usr/bin/env python3
"""Tests what the record of the interface takes for a break and what for an addition, and what it refuses to write.

usage: record_test.py ABI_DIRECTORY
"""

import contextlib
import io
import pathlib
import sys
import tempfile
import unittest

sys.path.insert(0, sys.argv.pop(1))
import abi  # noqa: E402
import compare  # noqa: E402

SHAPE = [
    "size 40, aligned to 8",
    "at   8: private QString m_name",
    "at  32: private bool m_filled",
    "at  33: private bool m_closed",
    "virtual   0: ~Shape()",
    "virtual   2: double area() const",
    "virtual   3: double length() const",
    "Shape()",
    "void scale(double)",
    "void scale(double, double)",
    "void setName(const QString&)",
]
COLOUR = ["Red = 0", "Green = 1", "Blue = 2"]
SYMBOLS = ["Shape::setName(QString const&) [_ZN5Shape7setNameERK7QString]"]


def interface(shape=None, colour=None, symbols=None, **others):
    return {"headers": ["shapes/Shape.h"], "enum class Colour : int": colour or COLOUR, "class Shape": shape or SHAPE,
            "symbols": symbols or SYMBOLS, **others}


def without(lines, *gone):
    assert set(gone) <= set(lines)
    return [line for line in lines if line not in gone]


def replaced(lines, old, new):
    assert old in lines
    return [new if line == old else line for line in lines]


RECORD = compare.text_of(interface(), "# A record.")


def line_of(text):
    return next(number for number, line in enumerate(RECORD.splitlines(), 1) if line.strip() == text)


def new(line):
    return f"class Shape: '{line}' is new, but programs are compiled with the class as it was"


def differences(current):
    return compare.compare(RECORD, current, "abi/1/Shapes.txt")


class Breaks(unittest.TestCase):
    def expect(self, current, *messages, additions=()):
        found = differences(current)
        self.assertEqual(found.breaks, list(messages))
        self.assertEqual(found.additions, list(additions))

    def test_an_interface_as_recorded_differs_in_nothing(self):
        self.expect(interface())

    def test_the_order_of_functions_does_not_matter(self):
        self.expect(interface(shape=sorted(SHAPE)))

    def test_a_data_member_that_makes_a_class_larger(self):
        grown = [*replaced(SHAPE, SHAPE[0], "size 48, aligned to 8"), "at  40: private int m_corners"]
        self.expect(interface(shape=grown),
                    f"abi/1/Shapes.txt:{line_of(SHAPE[0])}: class Shape: 'size 40, aligned to 8' is now "
                    "'size 48, aligned to 8'",
                    new("at  40: private int m_corners"))

    def test_a_data_member_where_there_was_room_for_it(self):
        self.expect(interface(shape=[*SHAPE, "at  34: private bool m_dashed"]),
                    new("at  34: private bool m_dashed"))

    def test_a_data_member_that_moves_the_others(self):
        moved = replaced(SHAPE, "at  33: private bool m_closed", "at  34: private bool m_closed")
        self.expect(interface(shape=[*moved, "at  33: private bool m_dashed"]),
                    f"abi/1/Shapes.txt:{line_of('at  33: private bool m_closed')}: class Shape: "
                    "'at  33: private bool m_closed' is now 'at  34: private bool m_closed'",
                    new("at  33: private bool m_dashed"))

    def test_two_data_members_that_change_places(self):
        swapped = replaced(SHAPE, "at  32: private bool m_filled", "at  33: private bool m_filled")
        swapped = replaced(swapped, "at  33: private bool m_closed", "at  32: private bool m_closed")
        self.assertEqual(len(differences(interface(shape=swapped)).breaks), 2)

    def test_another_type_of_a_data_member(self):
        self.expect(interface(shape=replaced(SHAPE, SHAPE[1], "at   8: private QByteArray m_name")),
                    f"abi/1/Shapes.txt:{line_of(SHAPE[1])}: class Shape: '{SHAPE[1]}' is gone",
                    new("at   8: private QByteArray m_name"))

    def test_a_value_in_the_middle_of_an_enumeration(self):
        self.expect(interface(colour=["Red = 0", "Yellow = 1", "Green = 2", "Blue = 3"]),
                    f"abi/1/Shapes.txt:{line_of('Green = 1')}: enum class Colour : int: 'Green = 1' is now 'Green = 2'",
                    f"abi/1/Shapes.txt:{line_of('Blue = 2')}: enum class Colour : int: 'Blue = 2' is now 'Blue = 3'",
                    additions=["enum class Colour : int: 'Yellow = 1'"])

    def test_another_signature(self):
        self.expect(interface(shape=replaced(SHAPE, SHAPE[-1], "bool setName(const QString&)")),
                    f"abi/1/Shapes.txt:{line_of(SHAPE[-1])}: class Shape: 'void setName(const QString&)' is now "
                    "'bool setName(const QString&)'")

    def test_an_overload_that_is_gone_is_not_taken_for_another_one(self):
        self.expect(interface(shape=without(SHAPE, "void scale(double)")),
                    f"abi/1/Shapes.txt:{line_of('void scale(double)')}: class Shape: 'void scale(double)' is gone")

    def test_a_virtual_function_in_the_middle(self):
        moved = replaced(SHAPE, "virtual   3: double length() const", "virtual   4: double length() const")
        self.expect(interface(shape=[*moved, "virtual   3: int corners() const"]),
                    f"abi/1/Shapes.txt:{line_of('virtual   3: double length() const')}: class Shape: "
                    "'virtual   3: double length() const' is now 'virtual   4: double length() const'",
                    new("virtual   3: int corners() const"))

    def test_a_virtual_function_at_the_end(self):
        self.expect(interface(shape=[*SHAPE, "virtual   4: int corners() const"]),
                    new("virtual   4: int corners() const"))

    def test_a_base(self):
        self.assertEqual(len(differences(interface(shape=[*SHAPE, "base Object"])).breaks), 1)

    def test_a_class_that_is_gone_is_said_once(self):
        current = interface()
        del current["class Shape"]
        self.expect(current, f"abi/1/Shapes.txt:{line_of('class Shape')}: 'class Shape' is gone")

    def test_a_symbol_that_is_gone(self):
        self.expect(interface(symbols=["something"]),
                    f"abi/1/Shapes.txt:{line_of(SYMBOLS[0])}: symbols: '{SYMBOLS[0]}' is gone",
                    additions=["symbols: 'something'"])


class Additions(unittest.TestCase):
    def expect(self, current, *messages):
        found = differences(current)
        self.assertEqual(found.breaks, [])
        self.assertEqual(found.additions, list(messages))

    def test_a_function(self):
        self.expect(interface(shape=[*SHAPE, "int corners() const"]), "class Shape: 'int corners() const'")

    def test_an_overload(self):
        self.expect(interface(shape=[*SHAPE, "void setName(const char*)"]), "class Shape: 'void setName(const char*)'")

    def test_a_value_at_the_end_of_an_enumeration(self):
        self.expect(interface(colour=[*COLOUR, "Yellow = 3"]), "enum class Colour : int: 'Yellow = 3'")

    def test_a_class(self):
        self.expect(interface(**{"class Line": ["size 8, aligned to 8"]}), "'class Line'")

    def test_a_private_data_member_of_another_name(self):
        self.expect(interface(shape=replaced(SHAPE, SHAPE[1], "at   8: private QString m_title")),
                    "class Shape: 'at   8: private QString m_title'")


class Writing(unittest.TestCase):
    def setUp(self):
        directory = tempfile.TemporaryDirectory()
        self.addCleanup(directory.cleanup)
        self.root = pathlib.Path(directory.name)
        self.changelog("## 1.0.0\n\n### Added\n\n- Shapes.\n")

    def changelog(self, text):
        (self.root / "CHANGELOG.md").write_text(f"# Changelog\n\n{text}", encoding="utf-8")

    def call(self, function, major, current):
        """The exit code of checking or writing, and what it prints."""
        with contextlib.redirect_stdout(io.StringIO()) as output:
            code = function(self.root, major, {"Shapes": current})
        return code, output.getvalue()

    def record(self, major):
        path = self.root / f"abi/{major}/Shapes.txt"
        return path.read_text(encoding="utf-8") if path.exists() else None

    def test_what_was_written_is_whole(self):
        self.assertEqual(self.call(abi.check, 1, interface())[0], 1)
        self.assertEqual(self.call(abi.write, 1, interface()), (0, ""))
        self.assertEqual(self.call(abi.check, 1, interface()), (0, ""))

    def test_what_was_added_is_asked_for_and_written(self):
        self.call(abi.write, 1, interface())
        grown = interface(shape=[*SHAPE, "int corners() const"])
        code, output = self.call(abi.check, 1, grown)
        self.assertEqual(code, 1)
        self.assertIn("'int corners() const'\nRecord it: scripts/abi\n", output)
        self.assertEqual(self.call(abi.write, 1, grown), (0, ""))
        self.assertEqual(self.call(abi.check, 1, grown), (0, ""))

    def test_a_break_is_not_written(self):
        self.call(abi.write, 1, interface())
        before = self.record(1)
        broken = interface(shape=without(SHAPE, "void scale(double)"))
        code, output = self.call(abi.check, 1, broken)
        self.assertEqual(code, 1)
        self.assertIn("'void scale(double)' is gone", output)
        self.assertIn('under "## 2.0.0"', output)
        code, output = self.call(abi.write, 1, broken)
        self.assertEqual(code, 1)
        self.assertIn("'void scale(double)' is gone", output)
        self.assertEqual(self.record(1), before)

    def test_a_new_major_version_may_break_what_the_changelog_names(self):
        self.call(abi.write, 1, interface())
        before = self.record(1)
        broken = interface(shape=without(SHAPE, "void scale(double)"))
        self.assertEqual(self.call(abi.check, 2, broken)[0], 1)
        for silent in ("", "## 2.0.0\n\n### Added\n\n- Lines.\n\n",
                       "## 2.0.0\n\n## 1.1.0\n\n### Changed\n\n- All.\n\n"):
            self.changelog(silent)
            code, output = self.call(abi.write, 2, broken)
            self.assertEqual(code, 1, silent)
            self.assertIn("CHANGELOG.md does not say so", output)
            self.assertIsNone(self.record(2))
        self.changelog("## 2.0.0\n\n### Removed\n\n- Scaling.\n\n")
        self.assertEqual(self.call(abi.write, 2, broken), (0, ""))
        self.assertEqual(self.call(abi.check, 2, broken), (0, ""))
        self.assertEqual(self.record(1), before)


if __name__ == "__main__":
    unittest.main()
