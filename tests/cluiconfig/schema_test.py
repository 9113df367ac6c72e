#!/usr/bin/env python3
"""Lets an independent validator, ajv, judge the JSON Schema, and compares what it says of documents with what
`cluiconfig check` says; and lets the TypeScript compiler compare SARIF output with the published shape of SARIF.

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

PACKAGES = ["ajv@8.20.0", "typescript@5.9.3", "@types/sarif@2.1.7"]
STRUCTURAL = {"wrong-version", "missing-key", "wrong-type", "unknown-key", "unknown-word", "empty-text", "wrong-length",
              "out-of-range", "missing-y"}
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


class AgainstAjv(program.TestCase):
    def verdicts(self, paths):
        """For each document, true or what ajv has against it."""
        schema = self.directory / "schema.json"
        schema.write_text(self.output("schema"))
        script = pathlib.Path(__file__).with_name("validate.mjs")
        result = subprocess.run(["node", str(script), str(NODE_DIRECTORY), str(schema), *map(str, paths)],
                                capture_output=True, text=True, timeout=240)
        self.assertEqual(result.stderr, "")
        return json.loads(result.stdout)

    def structural_findings(self, paths):
        """For each document, those of `cluiconfig check` that are about its structure."""
        result = self.run_program("check", "--format", "json", *map(str, paths), timeout=240)
        return [[finding for finding in report["findings"] if finding["rule"] in STRUCTURAL]
                for report in json.loads(result.stdout)]

    def compare(self, documents):
        paths = []
        for document in documents:
            paths.append(self.directory / f"{len(paths)}.json")
            paths[-1].write_text(json.dumps(document), encoding="utf-8")
        invalid = 0
        for path, verdict, findings in zip(paths, self.verdicts(paths), self.structural_findings(paths)):
            self.assertEqual(verdict is True, not findings,
                             f"ajv: {verdict}, check: {findings}, document: {path.read_text()[:200]}")
            invalid += verdict is not True
        return invalid

    def test_ajv_accepts_the_schema_and_the_shipped_document(self):
        self.assertEqual(self.verdicts([program.SHIPPED, EXAMPLES / "valid.json"]), [True, True])

    def test_ajv_refuses_the_examples_of_the_structural_rules_and_accepts_the_others(self):
        valid = (EXAMPLES / "valid.json").read_text(encoding="utf-8")
        documents = []
        for path in sorted(EXAMPLES.glob("*.json")):
            if path.stem != "valid" and not path.stem.startswith(("not-json", "lax-json")):
                example = json.loads(path.read_text(encoding="utf-8"))
                documents.append(json.loads(valid.replace(example["replace"], example["by"], 1)))
        self.assertGreaterEqual(self.compare(documents), len(STRUCTURAL))

    def test_ajv_and_check_agree_about_random_documents(self):
        shuffle = random.Random(29)
        shipped = program.shipped()
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
            return shuffle.choice(others)

        documents = [mutate(copy.deepcopy(shipped)) for _ in range(200)]
        invalid = self.compare([document for document in documents if isinstance(document, dict)])
        self.assertGreater(invalid, 100)


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
