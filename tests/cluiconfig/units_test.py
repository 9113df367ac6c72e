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

    def test_unit_gives_the_parameter_that_it_measures_with_its_units(self):
        for name in ("Voltage", "Angle", "Specific charge", "Current density", "Specific differential capacity rate"):
            units = self.tables("units", name)
            for row in units[f"Units of {name}"]:
                unit = row["Unit"]
                answer = {"Parameter": name, "Offered": True, "Shown": row["Shown"], "Why not": row["Why not"]}
                self.assertEqual(self.tables("units", unit),
                                 {f"Physical parameters measured in {unit}": [answer], **units})

    def test_unit_may_be_spelt_with_the_letters_of_any_keyboard(self):
        for spelling, unit in (("ohm", "Ω"), ("kohm", "kΩ"), ("\u2126", "Ω"), ("degC/min", "°C/min"), ("uA", "µA"),
                               ("\u03bcA", "µA"), ("uAh/cm2", "µAh/cm²"), ("g/cm^3", "g/cm³"), ("A*s/V/g", "A·s/V/g"),
                               ("uohm.cm", "µΩ·cm"), ("\u212b", "Å")):
            self.assertEqual(self.output("units", spelling), self.output("units", unit))

    def test_units_of_the_catalogue_may_be_spelt_as_in_the_names_of_its_arrays(self):
        compared = set()
        for array in self.tables("arrays")["Data arrays"]:
            spelling = array["Name"].partition(" / ")[2]
            if array["Unit"] and spelling not in compared:
                compared.add(spelling)
                parameters = self.tables("units", spelling)[f"Physical parameters measured in {array['Unit']}"]
                self.assertEqual([parameter["Parameter"] for parameter in parameters], [array["Parameter"]])
        self.assertGreater(len(compared), 30)

    def test_unit_that_is_not_offered_says_so(self):
        self.assertEqual(self.tables("units", "Ah/mg")["Physical parameters measured in Ah/mg"],
                         [{"Parameter": "Specific charge", "Offered": False, "Shown": False,
                           "Why not": "Ah/mg is not among the units that are offered"}])
        self.assertEqual(self.message(2, "units", "V/kg"), "No physical parameter is measured in V/kg.\n")

    def test_what_there_is_not_gives_the_near_ones_and_exit_code_2(self):
        for word, near in (("voltage", "Voltage"), ("Specific chrage", "Specific charge"), ("Vol", "Voltage"),
                           ("v", "V"), ("mah/g", "mAh/g"), ("mAh/gg", "mAh/g")):
            self.assertEqual(self.message(2, "units", word),
                             f'There is no physical parameter and no unit "{word}". Did you mean "{near}"?\n')
        self.assertEqual(self.message(2, "units", "0815"),
                         'There is no physical parameter and no unit "0815". "cluiconfig units" lists the '
                         'parameters.\n')


if __name__ == "__main__":
    program.main()
