#!/usr/bin/env python3
"""Runs `cluiconfig arrays` as people do. usage: arrays_test.py PROGRAM SHIPPED_DOCUMENT"""

import json

import program


class Arrays(program.TestCase):
    def arrays(self, *arguments):
        return self.tables("arrays", *arguments)["Data arrays"]

    def names(self, *arguments):
        return [array["Name"] for array in self.arrays(*arguments)]

    def catalogue(self):
        return self.file("arrays.json", {"Version": 1, "Categories": [
            {"Name": "Bench", "Arrays": [
                {"Name": "Probe 1 / V", "Parameter": "Voltage", "Unit": "V", "Machine name": "probe_one"},
                {"Name": "Lid open", "Type": "Boolean", "Export": "Never"}]},
            {"Name": "Oven", "Arrays": [
                {"Name": "Probe 1 / degC", "Parameter": "Temperature", "Unit": "°C", "Machine name": "heat"}]}]})

    def test_text_has_a_table_for_each_category(self):
        self.assertEqual(self.output("arrays", "--catalogue", self.catalogue()),
                         "Bench (2)\n"
                         "  Name         Unit  Parameter  Export    Machine name\n"
                         "  Probe 1 / V  V     Voltage    Standard  probe_one\n"
                         "  Lid open           None       Never\n"
                         "\n"
                         "Oven (1)\n"
                         "  Name            Unit  Parameter    Export    Machine name\n"
                         "  Probe 1 / degC  °C    Temperature  Standard  heat\n")

    def test_json_has_all_that_the_catalogue_says_in_its_order(self):
        categories = json.loads((program.SHIPPED.parent / "DataArrays.json").read_text(encoding="utf-8"))["Categories"]
        missing = {"Unit": "", "Parameter": "None", "Type": "Double", "Export": "Standard", "Required": False,
                   "Machine name": "", "Description": "", "Formula": ""}
        self.assertEqual(self.arrays(), [{"Category": category["Name"], **missing, **array}
                                         for category in categories for array in category["Arrays"]])
        kinds = [{"Name": f"{type} {export}", "Type": type, "Export": export}
                 for type in ("Double", "Float", "Integer", "Boolean", "Text")
                 for export in ("Never", "On demand", "Standard", "Complete")]
        path = self.file("kinds.json", {"Version": 1, "Categories": [{"Name": "Bench", "Arrays": kinds}]})
        self.assertEqual(self.arrays("--catalogue", path), [{"Category": "Bench", **missing, **kind} for kind in kinds])

    def test_empty_catalogue_is_an_empty_table(self):
        path = self.file("empty.json", {"Version": 1, "Categories": []})
        self.assertEqual(self.output("arrays", "--catalogue", path), "Data arrays (0)\n")
        self.assertEqual(self.arrays("--catalogue", path), [])

    def test_pattern_is_looked_for_in_names_and_machine_names_whatever_the_case(self):
        catalogue = ("--catalogue", self.catalogue())
        self.assertEqual(self.names("pRoBe", *catalogue), ["Probe 1 / V", "Probe 1 / degC"])
        self.assertEqual(self.names("1 / V", *catalogue), ["Probe 1 / V"])
        self.assertEqual(self.names("HEAT", *catalogue), ["Probe 1 / degC"])
        self.assertEqual(self.names("", *catalogue), ["Probe 1 / V", "Lid open", "Probe 1 / degC"])
        self.assertEqual(self.names("voltage"), [array["Name"] for array in self.arrays()
                                                 if "voltage" in (array["Name"] + array["Machine name"]).lower()])

    def test_several_words_must_all_be_there(self):
        self.assertEqual(self.names("one", "prob", "--catalogue", self.catalogue()), ["Probe 1 / V"])
        found = self.names("capacity", "CHARGING")
        self.assertGreater(len(found), 10)
        self.assertEqual(found, [name for name in self.names("capacity") if "charging" in name.lower()])

    def test_category_leaves_out_the_others(self):
        self.assertEqual(self.arrays("--category", "cycle"),
                         [array for array in self.arrays() if array["Category"] == "Cycle"])
        self.assertEqual(self.names("--category", "Step", "start", "voltage"), ["Start Voltage / V"])

    def test_where_nothing_contains_the_pattern_near_names_are_ranked(self):
        near = self.tables("arrays", "vltg")["Near matches"]
        self.assertEqual([(array["Category"], array["Name"]) for array in near[:3]],
                         [(category, "Voltage / V") for category in ("Potentiostat", "Impedance", "dQ/dU")])
        names = list(dict.fromkeys(array["Name"] for array in near))
        everything = self.file("names.txt", "".join(f"{name}\n" for array in self.arrays()
                                                    for name in (array["Name"], array["Machine name"])))
        ranked = self.output("search", "vltg", everything, "--strategy", "text").splitlines()
        self.assertEqual(names, [name for name in dict.fromkeys(ranked) if name in names])
        text = self.output("arrays", "vltg", "--category", "Impedance")
        self.assertEqual(text, 'No name contains "vltg"; those that come near, best first (1)\n'
                               "  Category   Name         Unit  Parameter  Export    Machine name\n"
                               "  Impedance  Voltage / V  V     Voltage    Standard  voltage_volt\n")

    def test_where_nothing_is_near_a_slip_of_the_hand_is_put_right_with_exit_code_1(self):
        for words, near in ((["votlage"], "Voltage"), (["chraging", "capacity"], "Charging Capacity"),
                            (["Test Tmie / s"], "Test Time / s"), (["voltaeg_volt"], "voltage_volt")):
            self.assertEqual(self.message(1, "arrays", *words),
                             f'No data array has a name like "{" ".join(words)}". Did you mean "{near}"?\n')
        self.assertEqual(self.message(1, "arrays", "0815"), 'No data array has a name like "0815".\n')
        self.assertEqual(self.message(1, "arrays", "0815", "--category", "step"),
                         'No data array of the category "step" has a name like "0815".\n')

    def test_category_that_there_is_not_gives_the_near_one_or_all_and_exit_code_2(self):
        self.assertEqual(self.message(2, "arrays", "--category", "Stpe"),
                         'There is no category "Stpe". Did you mean "Step"?\n')
        self.assertEqual(self.message(2, "arrays", "--category", "0815", "--catalogue", self.catalogue()),
                         'There is no category "0815". The categories are: Bench, Oven\n')

    def test_completion_offers_names_and_categories(self):
        self.assertEqual(self.completed("arrays", "--category", "St"), ["Step"])
        self.assertEqual(set(self.completed("arrays", "--category", "")),
                         {array["Category"] for array in self.arrays()})
        self.assertEqual(self.completed("arrays", "Test\\ T"), ["Test\\ Time\\ /\\ s"])
        self.assertEqual(self.completed("--catalogue", self.catalogue(), "arrays", "'Probe"),
                         ["Probe 1 / V", "Probe 1 / degC"])


if __name__ == "__main__":
    program.main()
