#!/usr/bin/env python3
"""Runs `cluiconfig axes` as people do. usage: axes_test.py PROGRAM SHIPPED_DOCUMENT"""

import program


class Axes(program.TestCase):
    def document(self):
        document = program.shipped()
        linear = {"DEFAULT_SCALE_X": "LINEAR", "DEFAULT_SCALE_Y": "LINEAR", "ORTHONORMAL_AXIS": "FALSE"}
        document["Axes combinations"] = [
            {"X": [{"Name": "Test Time / s", "Category": "Potentiostat"}],
             "Y1/Y2": [{"Name": "Voltage / V"}, {"Name": "Current / A", "Category": "Potentiostat"}], **linear},
            {"X": [{"Name": "Test Time / s", "Category": "Impedance"}],
             "Y1/Y2": [{"Name": "Voltage / V", "Category": "Impedance"}],
             "DEFAULT_SCALE_X": "LOGARITHMIC", "DEFAULT_SCALE_Y": "LINEAR", "ORTHONORMAL_AXIS": "TRUE"}]
        document["Representations"] = [
            {"Name": "Left", "X": "Test Time / s", "Y1": "Voltage / V", "Default": True},
            {"Name": "Right", "X": "Test Time / s", "Y1": "Current / A", "Y2": "Voltage / V"},
            {"Name": "Other", "X": "Test Time / s", "Y1": "Current / A"}]
        return self.file("axes.json", document)

    def test_without_a_name_the_x_axes_are_listed(self):
        self.assertEqual(self.output("axes", self.document()),
                         "X axes (1)\n  X              Y axes against it\n  Test Time / s  2\n")

    def test_an_x_axis_gives_the_y_axes_against_it(self):
        self.assertEqual(self.tables("axes", self.document(), "Test Time / s"),
                         {"Y axes against Test Time / s": [{"Y": "Voltage / V"}, {"Y": "Current / A"}]})

    def test_a_pair_gives_its_combinations_and_the_representations_that_use_it(self):
        self.assertEqual(self.tables("axes", self.document(), "Test Time / s", "Voltage / V"), {
            "Combinations": [
                {"X": "Test Time / s", "Y": "Voltage / V", "Category": "Potentiostat", "X scale": "linear",
                 "Y scale": "linear", "Orthonormal": False, "Taken": True},
                {"X": "Test Time / s", "Y": "Voltage / V", "Category": "Impedance", "X scale": "logarithmic",
                 "Y scale": "linear", "Orthonormal": True, "Taken": False}],
            "Representations": [{"Name": "Left", "Has Y as": "Y1", "Default": True},
                                {"Name": "Right", "Has Y as": "Y2", "Default": False}]})

    def test_without_a_document_the_shipped_one_answers(self):
        for names in ([], ["Frequency / Hz"], ["Frequency / Hz", "Phase / deg"]):
            self.assertEqual(self.output("axes", *names), self.output("axes", str(program.SHIPPED), *names))

    def test_a_file_is_a_document_whatever_it_is_called(self):
        path = self.file("axes", program.shipped())
        self.assertEqual(self.output("axes", path), self.output("axes"))

    def test_a_name_that_is_not_there_gives_the_near_ones_and_exit_code_1(self):
        self.assertEqual(self.message(1, "axes", "Frequency / HZ"),
                         'No axes combination has "Frequency / HZ" on its X axis. Did you mean "Frequency / Hz"?\n')
        self.assertEqual(self.message(1, "axes", self.document(), "Test Tiem / s", "Voltage / V"),
                         'No axes combination has "Test Tiem / s" on its X axis. Did you mean "Test Time / s"?\n')
        self.assertEqual(self.message(1, "axes", self.document(), "Test Time / s", "curr"),
                         'No axes combination has "Test Time / s" on its X axis and "curr" on its Y axis. '
                         'Did you mean "Current / A"?\n')
        self.assertEqual(self.message(1, "axes", self.document(), "0815"),
                         'No axes combination has "0815" on its X axis.\n')

    def test_missing_document_is_no_name_and_does_not_load(self):
        for words in (["missing.json"], ["missing", "X", "Y"]):
            message = self.message(1, "axes", *words)
            self.assertIn(f'Cannot open "{words[0]}"', message)

    def test_refused_document_gives_the_message_of_the_loader_and_exit_code_1(self):
        document = program.shipped()
        del document["Recipe"]
        message = self.message(1, "axes", self.file("refused.json", document), "Frequency / Hz")
        self.assertEqual(message, self.message(1, "show", self.file("refused.json", document)))
        self.assertNotEqual(message, "")


if __name__ == "__main__":
    program.main()
