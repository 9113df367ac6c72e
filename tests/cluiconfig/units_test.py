#!/usr/bin/env python3
"""Runs `cluiconfig units` as people do. usage: units_test.py PROGRAM SHIPPED_DOCUMENT"""

import program


class Units(program.TestCase):
    def units(self, parameter):
        rows = self.tables("units", parameter)[f"Units of {parameter}"]
        return {row["Unit"]: row["Why not"] if not row["Shown"] else "shown" for row in rows}

    def test_text_has_a_line_for_each_unit(self):
        text = self.output("units", "Voltage")
        self.assertTrue(text.startswith("Units of Voltage (10)\n"), text)
        self.assertIn("\n  mV     yes\n", text)
        self.assertIn("\n  kV     no     kV is not among the units that may be shown\n", text)

    def test_component_that_may_not_be_shown_is_named_wherever_it_stands(self):
        self.assertEqual(self.units("Current")["kA"], "kA is not among the units that may be shown")
        units = self.units("Voltage rate")
        self.assertEqual(units["V/s"], "shown")
        self.assertEqual(units["V/ms"], "ms stands behind an operator: of the times only s and h may")
        self.assertEqual(units["mV/min"], "min stands behind an operator: of the times only s and h may")
        units = self.units("Specific differential capacity rate")
        self.assertEqual(units["mAh/g/V/h"], "h is a time at the fourth place")
        self.assertEqual(units["mAh/g/V/d"], "d stands behind an operator: of the times only s and h may")

    def test_every_unit_is_either_shown_or_has_a_reason(self):
        parameters = self.tables("units")["Physical parameters"]
        self.assertEqual(len(parameters), 55)
        for parameter in parameters:
            reasons = self.units(parameter["Parameter"])
            self.assertEqual(len(reasons), parameter["Units"])
            self.assertEqual(list(reasons.values()).count("shown"), parameter["Shown"])
            for unit, reason in reasons.items():
                if reason != "shown":
                    component = reason.split(" ")[0]
                    self.assertIn(component, unit)

    def test_parameter_that_there_is_not_gives_the_near_ones_and_exit_code_2(self):
        self.assertEqual(self.message(2, "units", "voltage"),
                         'There is no physical parameter "voltage". Did you mean "Voltage"?\n')
        self.assertEqual(self.message(2, "units", "Specific chrage"),
                         'There is no physical parameter "Specific chrage". Did you mean "Specific charge"?\n')
        self.assertEqual(self.message(2, "units", "0815"),
                         'There is no physical parameter "0815". "cluiconfig units" lists them.\n')


if __name__ == "__main__":
    program.main()
