#!/usr/bin/env python3
"""Lets an independent validator, ajv, judge the JSON Schemas, and compares what it says of documents and catalogues with
what `cluiconfig check` and `cluiconfig check-catalogue` say; asks the language server of an editor what it completes
and marks; and lets the TypeScript compiler compare SARIF output with the published shape of SARIF.

usage: schema_test.py PROGRAM SHIPPED_DOCUMENT EXAMPLES DIRECTORY

The programs come from npm and are kept in DIRECTORY. Exits with 77 where there is no node or no network.
"""

import copy
import json
import pathlib
import random
import shutil
import subprocess
import sys
import tempfile

import program

PACKAGES = ["ajv@8.20.0", "typescript@5.9.3", "@types/sarif@2.1.7", "vscode-json-languageservice@5.7.2"]
STRUCTURAL = {"wrong-kind", "wrong-version", "missing-key", "wrong-type", "unknown-key", "unknown-word", "empty-text", "wrong-length",
              "out-of-range", "missing-y"}
NAMES = {"unknown-array", "unknown-category"}
EXAMPLES = NODE_DIRECTORY = pathlib.Path()


def skip(reason):
    print("skipped:", reason)
    sys.exit(77)


def get_packages():
    if not shutil.which("node") or not shutil.which("npm"):
        skip("node or npm is missing")
    NODE_DIRECTORY.mkdir(parents=True, exist_ok=True)
    names = [package.rsplit("@", 1)[0] for package in PACKAGES]
    if not all((NODE_DIRECTORY / "node_modules" / name).exists() for name in names):
        install = subprocess.run(["npm", "install", "--no-audit", "--no-fund", "--silent", "--prefix",
                                  str(NODE_DIRECTORY), *PACKAGES], capture_output=True, text=True, timeout=240)
        if install.returncode != 0:
            skip("npm cannot install what the test needs: " + install.stderr)


class WithNode(program.TestCase):
    def answers(self, script, paths, options=()):
        """What a script says of each document by the schema that `cluiconfig schema` prints with the options."""
        schema = self.directory / "schema.json"
        schema.write_text(self.output("schema", *options), encoding="utf-8")
        script = pathlib.Path(__file__).with_name(script)
        result = subprocess.run(["node", str(script), str(NODE_DIRECTORY), str(schema), *map(str, paths)],
                                capture_output=True, text=True, encoding="utf-8", timeout=240)
        self.assertEqual(result.stderr, "")
        return json.loads(result.stdout)


class AgainstAjv(WithNode):
    command, options, rules = "check", (), STRUCTURAL
    refused = 9  # examples at least

    def shipped(self):
        return program.SHIPPED

    def examples(self):
        return EXAMPLES

    def known_names(self):
        return []

    def verdicts(self, paths):
        """For each document, true or what ajv has against it."""
        return self.answers("validate.mjs", paths, self.options)

    def findings(self, paths):
        """For each document, those of the check that are about what the schema says."""
        result = self.run_program(self.command, "--format", "json", *map(str, paths), timeout=240)
        return [[finding for finding in report["findings"] if finding["rule"] in self.rules]
                for report in json.loads(result.stdout)]

    def compare(self, documents):
        paths = []
        for document in documents:
            paths.append(self.directory / f"{len(paths)}.json")
            paths[-1].write_text(json.dumps(document), encoding="utf-8")
        invalid = 0
        for path, verdict, findings in zip(paths, self.verdicts(paths), self.findings(paths)):
            self.assertEqual(verdict is True, not findings,
                             f"ajv: {verdict}, check: {findings}, document: {path.read_text()[:200]}")
            invalid += verdict is not True
        return invalid

    def test_ajv_accepts_the_schema_and_what_is_shipped(self):
        self.assertEqual(self.verdicts([self.shipped(), self.examples() / "valid.json"]), [True, True])

    def test_ajv_refuses_the_examples_of_these_rules_and_accepts_the_others(self):
        valid = (self.examples() / "valid.json").read_text(encoding="utf-8")
        documents = []
        for path in sorted(self.examples().glob("*.json")):
            if path.stem != "valid" and not path.stem.startswith(("not-json", "lax-json")):
                example = json.loads(path.read_text(encoding="utf-8"))
                documents.append(json.loads(valid.replace(example["replace"], example["by"], 1)))
        self.assertGreaterEqual(self.compare(documents), self.refused)

    def test_ajv_and_check_agree_about_random_documents(self):
        shuffle = random.Random(29)
        shipped = json.loads(self.shipped().read_text(encoding="utf-8"))
        names = self.known_names()
        others = [None, 0, 29, -1, 29.5, 1e300, True, False, "", "TRUE", "Mass", [], [1, "two", [{}]], {},
                  {"Name": "Voltage / V"}, {"": True}]

        def mutate(value):
            if value and isinstance(value, (dict, list)) and shuffle.randrange(10):
                key = shuffle.choice(list(value)) if isinstance(value, dict) else shuffle.randrange(len(value))
                action = shuffle.randrange(8)
                if action == 0:
                    del value[key]
                elif action == 1 and isinstance(value, dict):
                    value[key + "s"] = value.pop(key)
                else:
                    value[key] = mutate(value[key])
                return value
            return shuffle.choice(names if names and isinstance(value, str) and shuffle.randrange(4) else others)

        documents = [mutate(copy.deepcopy(shipped)) for _ in range(200)]
        invalid = self.compare([document for document in documents if isinstance(document, dict)])
        self.assertGreater(invalid, 100)


class CataloguesAgainstAjv(AgainstAjv):
    command, options, refused = "check-catalogue", ("catalogue",), 6

    def shipped(self):
        return program.SHIPPED.parent / "DataArrays.json"

    def examples(self):
        return EXAMPLES.parent / "catalogues"


class AgainstAjvWithNames(AgainstAjv):
    options = ("--names",)
    rules = STRUCTURAL | NAMES

    def known_names(self):
        arrays = self.tables("arrays")["Data arrays"]
        return sorted({array[key] for array in arrays for key in ("Name", "Category")})

    def test_ajv_accepts_the_names_of_any_catalogue_and_no_others(self):
        names = ['Probe "1" / V', "Prüfung / %"]
        for categories in ([], ["Bench"], ['A/B~ "c" %20 #', "Potentiostat"]):
            catalogue = self.file("arrays.json", {"Version": 1, "Categories": [
                {"Name": category, "Arrays": [{"Name": name} for name in names]} for category in categories]})
            axes = {"X": [{"Name": names[0], "Category": category} for category in categories],
                    "Y1/Y2": [{"Name": name} for name in names[:2 * len(categories)]], "DEFAULT_SCALE_X": "LINEAR",
                    "DEFAULT_SCALE_Y": "LINEAR", "ORTHONORMAL_AXIS": "FALSE"}
            curves = [{"Title": "1", "Category": category, "X": names[0], "Y": names[1], "Type": "Line"}
                      for category in categories]
            graphs = [{"UITitle": "", "Param1": category, "Param2": names[0], "Param3": names[1]}
                      for category in categories]
            shipped = program.shipped()
            document = {**shipped, "Axes combinations": [axes], "Representations": [], "Processed Data": [],
                        "Recipe": {**shipped["Recipe"], "GraphCommand": graphs},
                        "Tools": {"Summary Table": {"Per step": {category: names for category in categories}}},
                        "Statistics": {"Graph": curves}, "Ragone Plot": {},
                        "dQ_dU": {"Table": names if "Potentiostat" in categories else [],
                                  "Graph": {"Title": "", "Category": "", "X": "", "Y1": ""}}}
            text = json.dumps(document, ensure_ascii=False)
            paths = [self.file("right.json", text), self.file("wrong.json", text.replace("Prüfung / %", "Prüfung")),
                     self.file("other.json", text.replace("%20", "20").replace("Bench", "Bank"))]
            verdicts = self.answers("validate.mjs", paths, ("--names", "--catalogue", catalogue))
            self.assertEqual([verdict is True for verdict in verdicts], [True, not categories, not categories])


class InAnEditor(WithNode):
    """What people see who write a document with the schema beside it. The sign ¦ is the cursor."""

    def asked(self, *documents, options=("--names",)):
        return self.answers("editor.mjs", [self.file(f"{i}.json", text) for i, text in enumerate(documents)], options)

    def names(self, *arguments):
        return {json.dumps(array["Name"], ensure_ascii=False)
                for array in self.tables("arrays", *arguments)["Data arrays"]}

    def categories(self):
        return {f'"{array["Category"]}"' for array in self.tables("arrays")["Data arrays"]}

    def test_names_are_completed_by_the_category_that_stands_there(self):
        places = {
            '{"Axes combinations": [{"X": [{"Category": "Ragone", "Name": ¦}]}]}': "Ragone",
            '{"Axes combinations": [{"Y1/Y2": [{"Name": "¦", "Category": "Step"}]}]}': "Step",
            '{"Axes combinations": [{"Y1/Y2": [{"Name": "Phase¦", "Category": "Impedance"}]}]}': "Impedance",
            '{"Statistics": {"Graph": [{"Category": "Loop", "X": ¦}]}}': "Loop",
            '{"Ragone Plot": {"Graph": [{"Category": "Ragone", "Y": ""}, {"Y": "¦", "Category": "Cycle"}]}}': "Cycle",
            '{"Processed Data": [{"Category": "Step", "X": "Step Time / s", "Y1": ¦}]}': "Step",
            '{"Processed Data": [{"Category": "Loop", "Y_processed": ["Loop Time / s", ¦]}]}': "Loop",
            '{"Tools": {"Summary Table": {"Per cycle": {"Cycle": ["¦"]}}}}': "Cycle",
            '{"dQ_dU": {"Table": [¦]}}': "Potentiostat",
            '{"dQ_dU": {"Graph": {"Category": "dQ/dU", "X": ¦}}}': "dQ/dU",
            '{"Recipe": {"GraphCommand": [{"Param1": "Impedance", "Param3": ¦}]}}': "Impedance",
        }
        for answer, (text, category) in zip(self.asked(*places), places.items()):
            self.assertEqual(set(answer["offered"]), self.names("--category", category), text)

    def test_all_names_are_offered_where_any_category_is_meant(self):
        places = ('{"Axes combinations": [{"X": [{"Name": ¦}]}]}', '{"Representations": [{"X": ¦}]}',
                  '{"Representations": [{"Y1": "¦"}]}', '{"Representations": [{"Y2": ¦}]}',
                  '{"Statistics": {"Graph": [{"X": ¦}]}}')
        for answer, text in zip(self.asked(*places), places):
            self.assertEqual(set(answer["offered"]), self.names(), text)

    def test_categories_are_completed(self):
        places = ('{"Axes combinations": [{"X": [{"Name": "Voltage / V", "Category": ¦}]}]}',
                  '{"Statistics": {"Graph": [{"Category": "¦"}]}}', '{"Processed Data": [{"Category": ¦}]}',
                  '{"dQ_dU": {"Graph": {"Category": ¦}}}', '{"Recipe": {"GraphCommand": [{"Param1": ¦}]}}')
        for answer, text in zip(self.asked(*places), places):
            self.assertEqual(set(answer["offered"]), self.categories(), text)
        keys = self.asked('{"Tools": {"Summary Table": {"Per step": {¦}}}}')[0]["offered"]
        self.assertEqual({f'"{key}"' for key in keys}, self.categories())

    def test_what_has_no_names_is_completed_as_ever(self):
        places = ('{"Axes combinations": [{"DEFAULT_SCALE_X": ¦}]}', '{"Statistics": {"Graph": [{"Type": ¦}]}}',
                  '{"MSVUnits": [{"Operator": ¦}]}', '{"Recipe": {"ToolSummaryCommand": [{"Param1": ¦}]}}', '{¦}')
        with_names, without = ([sorted(answer["offered"]) for answer in self.asked(*places, options=options)]
                               for options in (("--names",), ()))
        self.assertEqual(with_names, without)
        self.assertEqual(with_names[0], ['"LINEAR"', '"LOGARITHMIC"'])

    def test_names_of_a_site_are_completed(self):
        catalogue = self.file("arrays.json", {"Version": 1, "Categories": [
            {"Name": "A/B 1", "Arrays": [{"Name": "Probe / V", "Parameter": "Voltage", "Unit": "V"}]},
            {"Name": "Oven", "Arrays": [{"Name": "Lid open"}]}]})
        answers = self.asked('{"Axes combinations": [{"X": [{"Category": "A/B 1", "Name": ¦}]}]}',
                             '{"Statistics": {"Graph": [{"Category": ¦}]}}',
                             options=("--names", "--catalogue", catalogue))
        self.assertEqual([answer["offered"] for answer in answers], [['"Probe / V"'], ['"A/B 1"', '"Oven"']])

    def test_shipped_document_has_no_problem(self):
        self.assertEqual(self.asked(program.SHIPPED.read_text(encoding="utf-8")), [{"problems": [], "offered": []}])

    def test_name_that_there_is_not_is_marked(self):
        shipped = program.SHIPPED.read_text(encoding="utf-8")
        slips = (('"Phase / deg"', '"Phase / rad"', '"Phase / rad"'), ('"Loop": [', '"Loops": [', '"Loops"'),
                 ('"Category": "Ragone"', '"Category": "Ragoon"', '"Ragoon"'))
        answers = self.asked(*(shipped.replace(right, wrong) for right, wrong, _ in slips))
        for answer, (_, wrong, marked) in zip(answers, slips):
            self.assertEqual({problem["text"] for problem in answer["problems"]}, {marked}, wrong)


class Sarif(program.TestCase):
    def compiler_output(self, log):
        """What the compiler has against the log as a value of the published type: nothing if it fits, unknown
        properties included."""
        with tempfile.TemporaryDirectory(dir=NODE_DIRECTORY) as directory:
            script = pathlib.Path(directory) / "log.ts"
            script.write_text('import { Log } from "sarif";\nexport const log: Log = ' + log + ";\n", encoding="utf-8")
            result = subprocess.run(["node", str(NODE_DIRECTORY / "node_modules" / "typescript" / "bin" / "tsc"),
                                     "--noEmit", "--strict", "--moduleResolution", "node", str(script)],
                                    capture_output=True, text=True, timeout=240)
            return result.stdout

    def test_output_has_the_published_shape_of_sarif_2_1_0(self):
        paths = [str(self.directory / "missing.json")]
        valid = (EXAMPLES / "valid.json").read_text(encoding="utf-8")
        for path in sorted(EXAMPLES.glob("*.json")):
            example = json.loads(path.read_text(encoding="utf-8"))
            paths.append(self.file(path.name, valid.replace(example.get("replace", "$"), example.get("by", ""), 1)))
        log = self.run_program("check", "--format", "sarif", *paths).stdout
        self.assertGreater(len(json.loads(log)["runs"][0]["results"]), 30)
        self.assertEqual(self.compiler_output(log), "")
        for wrong in (log.replace('"startLine"', '"firstLine"'), log.replace('"2.1.0"', '"2.0.0"'),
                      log.replace('"level": "error"', '"level": "fatal"')):
            self.assertNotEqual(self.compiler_output(wrong), "")


if __name__ == "__main__":
    EXAMPLES, NODE_DIRECTORY = (pathlib.Path(argument).resolve() for argument in program.take_arguments())
    get_packages()
    program.run_tests()
