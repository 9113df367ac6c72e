#!/usr/bin/env python3
"""Runs `cluiconfig check` and `cluiconfig schema` as people do.

usage: check_test.py PROGRAM SHIPPED_DOCUMENT EXAMPLES DOCS     runs the tests
       check_test.py --table PROGRAM SHIPPED_DOCUMENT EXAMPLES DOCS   prints the table of rules of docs/check.md

An example is a change to EXAMPLES/valid.json, with what is found then; "times" says how often "by" stands there.
"""

import json
import os
import pathlib
import subprocess
import sys
import unittest
import urllib.parse

import program

EXAMPLES = DOCS = pathlib.Path()


def examples(directory=None):
    return {path.stem: json.loads(path.read_text(encoding="utf-8"))
            for path in sorted((directory or EXAMPLES).glob("*.json")) if path.stem != "valid"}


def all_examples():
    """Those of documents and those of catalogues, which stand side by side."""
    return [*examples(EXAMPLES.parent / "examples").values(), *examples(EXAMPLES.parent / "catalogues").values()]


def changed(example):
    valid = (EXAMPLES / "valid.json").read_text(encoding="utf-8")
    return valid.replace(example["replace"], ", ".join([example["by"]] * example.get("times", 1)), 1)


def rules():
    """Name, severities and meaning of each, as the program lists them."""
    lines = program.run("check", "--list-rules").stdout.splitlines()
    return [(line[:24].strip(), line[24:42].strip(), line[42:]) for line in lines]


def table(needs_example=False):
    """The table of rules in the documentation: a row an example, the rules in the program's order."""
    cell = lambda text: text.replace("|", "\\|").replace("\n", " ").strip()
    lines = ["| Rule | Severity | Mistake | Message |", "|---|---|---|---|"]
    for name, severities, meaning in rules():
        own = [(example, finding) for example in examples().values() for finding in example["findings"]
               if finding["rule"] == name]
        shown = set()
        for example, finding in own:
            message = cell(finding["message"])
            if (finding["severity"], message) in shown or example["findings"][0]["rule"] != name:
                continue
            shown.add((finding["severity"], message))
            change = "`%s` → `%s`" % (cell(example["replace"]), cell(example["by"])) if cell(example["by"]) \
                else "`%s` removed" % cell(example["replace"])
            change += ", %d times" % example["times"] if "times" in example else ""
            lines.append("| `%s` | %s | %s | %s |" % (name, finding["severity"], change, message))
        if not own and not needs_example:
            lines.append("| `%s` | %s | | %s |" % (name, severities, cell(meaning)))
    return "\n".join(lines) + "\n"


class InDirectory(program.TestCase):
    COMMAND, FILE = "check", "document.json"

    def document(self, text, name=None):
        """Makes a document of a text, and returns its name in the directory in which check() runs the program."""
        self.file(name or self.FILE, text)
        return name or self.FILE

    def check(self, *arguments, **options):
        return self.run_program(self.COMMAND, *arguments, cwd=self.directory, **options)

    def findings(self, name, *arguments):
        return json.loads(self.check("--format", "json", name, *arguments).stdout)[0]["findings"]


class Examples(InDirectory):
    """Runs the examples of EXAMPLES; for documents here, for catalogues elsewhere."""

    def test_examples_have_exactly_the_findings_that_stand_with_them(self):
        for name, example in examples().items():
            with self.subTest(name):
                file = self.document(changed(example))
                self.assertNotEqual(changed(example), (EXAMPLES / "valid.json").read_text(encoding="utf-8"))
                result = self.check("--format", "json", file)
                self.assertEqual(json.loads(result.stdout),
                                 [{"file": file, "loads": example["error"] is None, "error": example["error"],
                                   "findings": example["findings"]}])
                self.assertEqual(result.returncode, 0 if example["error"] is None else 1)


class Rules(InDirectory):
    def test_a_catalogue_is_told_from_a_document(self):
        path = str(program.SHIPPED.parent / "DataArrays.json")
        report = json.loads(self.check("--format", "json", path).stdout)[0]
        self.assertEqual(report["error"], "The format version is 1: expected 29")
        self.assertEqual([(finding["rule"], finding["severity"], finding["line"], finding["message"])
                          for finding in report["findings"]],
                         [("wrong-kind", "error", 1, "This is a catalogue of data arrays, not a UIConfig.json: the application "
                           "refuses the document. `cluiconfig check-catalogue` checks it.")])

    def test_documents_without_mistakes_get_nothing_but_the_verdict(self):
        for path in (program.SHIPPED, EXAMPLES / "valid.json"):
            result = self.run_program("check", "--strict", str(path))
            self.assertEqual((result.returncode, result.stdout, result.stderr), (0, f"{path}: loads\n", ""))

    def test_every_rule_has_an_example_unless_nothing_can_break_it(self):
        shown = {finding["rule"] for example in all_examples() for finding in example["findings"]}
        self.assertEqual([name for name, _, _ in rules() if name not in shown], ["unreadable", "refused"])

    def test_severities_of_the_examples_are_those_of_the_rules(self):
        allowed = {name: severities.split(" or ") for name, severities, _ in rules()}
        shown = {name: set() for name in allowed}
        for example in all_examples():
            for finding in example["findings"]:
                shown[finding["rule"]].add(finding["severity"])
        for name in allowed:
            if shown[name]:
                self.assertEqual((name, sorted(shown[name])), (name, sorted(allowed[name])))

    def test_documentation_holds_the_table(self):
        self.assertIn(table(), DOCS.read_text(encoding="utf-8"))

    def test_the_session_in_the_documentation_happens_as_it_is_told(self):
        told = DOCS.read_text(encoding="utf-8").split("## A first session")[1].split("```")[1].strip() + "\n"
        self.document((EXAMPLES / "session" / "UIConfig.json").read_text(encoding="utf-8"), "UIConfig.json")
        (self.directory / "bin").mkdir()
        (self.directory / "bin" / "cluiconfig").symlink_to(program.PROGRAM)
        environment = {**os.environ, "PATH": f"{self.directory / 'bin'}:{os.environ['PATH']}"}
        happened = ""
        for command in [line[2:] for line in told.splitlines() if line.startswith("$ ")]:
            result = subprocess.run(["sh", "-c", command], cwd=self.directory, env=environment, capture_output=True,
                                    text=True, timeout=60)
            self.assertEqual(result.stderr, "")
            happened += f"$ {command}\n{result.stdout}"
        self.assertEqual(happened, told)

    def test_a_rule_can_be_turned_off_or_made_an_error_or_a_warning(self):
        unused = self.document(changed(examples()["unused-color"]))
        self.assertEqual(self.check("--rule", "unused-color=off", unused).stdout, f"{unused}: loads\n")
        result = self.check("--rule", "unused-color=error", unused)
        self.assertEqual(result.returncode, 1)
        self.assertIn(": error: No default uses", result.stdout)
        self.assertEqual(self.check("--strict", unused).returncode, 1)

        refused = self.document(changed(examples()["wrong-length"]))
        result = self.check("--rule=wrong-length=warning", refused)
        self.assertIn(": warning: ", result.stdout)
        self.assertEqual(result.returncode, 1, "what the application refuses fails whatever the rules say")

    def test_unknown_rules_and_severities_are_wrong_arguments(self):
        for argument in ("unused-colour=off", "unused-color", "unused-color=info", "=off"):
            result = self.check("--rule", argument, self.document("{}"))
            self.assertEqual((argument, result.returncode, result.stdout), (argument, 2, ""))
        self.assertIn('Did you mean "unused-color"?', self.check("--rule", "unused-colour=off", "x").stderr)


class Output(InDirectory):
    def test_text_has_the_verdict_a_line_a_finding_and_their_number(self):
        name = self.document(changed(examples()["unknown-array"]))
        self.assertEqual(self.check(name).stdout, (
            "document.json: refused: Unexpected Y1 Voltage\n"
            'document.json:20:68: error: The catalogue has no array "Voltage": the application refuses the document.'
            ' Did you mean "Voltage / V"? [unknown-array at /Representations/0/Y1]\n'
            "document.json: 1 error, 0 warnings\n"))

    def test_several_documents_are_checked_independently_and_the_worst_decides(self):
        good = self.document((EXAMPLES / "valid.json").read_text(encoding="utf-8"), "good.json")
        bad = self.document(changed(examples()["missing-y"]), "bad.json")
        for order in ((good, bad, good), (bad, good, bad)):
            result = self.check(*order)
            self.assertEqual(result.returncode, 1)
            verdicts = [line for line in result.stdout.splitlines() if ": loads" in line or ": refused" in line]
            self.assertEqual([verdict.split(":")[0] for verdict in verdicts], list(order))
        self.assertEqual([report["loads"] for report in json.loads(self.check("--format=json", good, bad).stdout)],
                         [True, False])
        self.assertEqual(self.check(bad, "missing.json").returncode, 2)

    def terminal(self, text=None, **environment):
        path = str(self.directory / self.document(text or changed(examples()["wrong-length"])))
        return self.on_terminal("check", path, exit_code=1, environment=environment)

    @program.needs_posix("a pseudo terminal")
    def test_a_terminal_shows_the_line_with_a_mark_under_the_place(self):
        lines = self.terminal(NO_COLOR="1").splitlines()
        finding = examples()["wrong-length"]["findings"][0]
        number, quoted = lines[2].split(" | ")
        self.assertEqual(int(number), finding["line"])
        column = lines[3].index("^") - lines[2].index(quoted)
        self.assertTrue(quoted[column:].startswith("[0, 114]"), lines)
        self.assertNotIn("^", self.check(self.document(changed(examples()["wrong-length"]))).stdout)

    @program.needs_posix("a pseudo terminal")
    def test_a_terminal_shows_the_part_of_a_long_line_that_matters(self):
        text = json.dumps(dict(program.shipped(), Version=28))
        lines = self.terminal(text, NO_COLOR="1").splitlines()
        self.assertLess(len(lines[2]), 120)
        self.assertTrue(lines[2][lines[3].index("^"):].startswith("28"), lines)

    @program.needs_posix("a pseudo terminal")
    def test_colours_on_a_terminal_only_and_not_against_the_users_will(self):
        self.assertIn("\033[1;31mrefused: \033[0m", self.terminal())
        self.assertNotIn("\033", self.terminal(NO_COLOR="1"))
        self.assertNotIn("\033", self.terminal(TERM="dumb"))
        self.assertIn("\033", self.terminal(NO_COLOR=""))
        self.assertNotIn("\033", self.check(self.document("{}")).stdout)

    def test_sarif_points_at_the_same_places(self):
        name = self.document(changed(examples()["unknown-word"]), "a b.json")
        log = json.loads(self.check("--format", "sarif", name).stdout)
        run = log["runs"][0]
        self.assertEqual((log["version"], run["tool"]["driver"]["name"]), ("2.1.0", "cluiconfig"))
        self.assertEqual([rule["id"] for rule in run["tool"]["driver"]["rules"]], [name for name, _, _ in rules()])
        result = run["results"][0]
        finding = examples()["unknown-word"]["findings"][0]
        self.assertEqual((result["ruleId"], result["level"], result["message"]["text"]),
                         ("unknown-word", "warning", finding["message"]))
        self.assertEqual(run["tool"]["driver"]["rules"][result["ruleIndex"]]["id"], "unknown-word")
        location = result["locations"][0]
        self.assertEqual(location["physicalLocation"],
                         {"artifactLocation": {"uri": "a%20b.json"},
                          "region": {"startLine": finding["line"], "startColumn": finding["column"]}})
        self.assertEqual(location["logicalLocations"], [{"fullyQualifiedName": finding["pointer"]}])

    def uri(self, name):
        """What a SARIF log calls a file, in its results and in its list of files."""
        result = subprocess.run([program.PROGRAM, "check", "--format", "sarif", "--", name], capture_output=True, cwd=self.directory,
                                timeout=60)
        (run,) = json.loads(result.stdout.decode())["runs"]
        (artifact,) = run["artifacts"]
        for each in run["results"]:
            self.assertEqual(each["locations"][0]["physicalLocation"]["artifactLocation"], artifact["location"])
        self.assertNotEqual(run["results"], [])
        return artifact["location"]["uri"]

    @program.needs_posix("names with any sign but a slash")
    def test_sarif_names_files_by_uris_that_lead_back_to_them(self):
        for name in ("a b.json", "a:b.json", "c:/d:e.json", "/a:b/c.json", "50%20.json", "#1?.json", "?", "ä µ 電.json",
                     "[x]{y}|z^`\"<>.json", "a\\b.json", "../up/./x.json", "a//b", "//a/b.json", "/", "-x", "~x", "it's+&=;,@!$()*",
                     b"Pr\xfcfstand.json", b"\xff:\xfe", "\n\t", "file:x", "http://x/y", "a" * 300):
            with self.subTest(name):
                uri = self.uri(name)
                self.assertRegex(uri, r"\A(?:[A-Za-z0-9._~!$&'()*+,;=:@/-]|%[0-9A-F]{2})+\Z")
                parts = urllib.parse.urlsplit(uri)
                isAbsolute = os.fsdecode(name).startswith("/")
                self.assertEqual((parts.scheme, parts.netloc), ("file" if isAbsolute else "", ""))
                if not isAbsolute:
                    parts = urllib.parse.urlsplit(urllib.parse.urljoin("file:///a/base/", uri))
                path = urllib.parse.unquote_to_bytes(parts.path)
                self.assertEqual(os.path.normpath(path), os.path.normpath(os.path.join(b"/a/base/", os.fsencode(name))))

    @unittest.skipUnless(program.IS_WINDOWS, "needs drives")
    def test_sarif_names_files_on_drives(self):
        for name, uri in (("C:\\a b\\c.json", "file:///C:/a%20b/c.json"), ("C:/a.json", "file:///C:/a.json"), ("a\\b.json", "a/b.json"),
                          ("\\\\server\\share\\a.json", "file://server/share/a.json")):
            self.assertEqual(self.uri(name), uri)

    def test_reports_for_programs_are_text_whatever_the_document_names(self):
        halves = "A\ud800", "\udc00B", "\udfff\udbff", "C\\ud800\ud83d"
        document = program.shipped()
        document["Colors"]["Custom colors"] += [{"name": half, "RGB": [1, 2, 3]} for half in halves]
        document.update({half: 0 for half in halves})
        document["\U0001f600 \uffff\u0000\u007f\\ud800"] = 0
        document["Axes combinations"][0]["X"][0]["Name"] = halves[0]
        name = self.document(json.dumps(document))
        for form in ("json", "sarif"):
            result = subprocess.run([program.PROGRAM, "check", "--format", form, name], capture_output=True, cwd=self.directory,
                                    timeout=60)
            self.assertEqual((result.returncode, result.stderr), (1, b""))
            report = json.loads(result.stdout.decode())
            text = json.dumps(report, ensure_ascii=False)
            text.encode()  # fails with halves of surrogate pairs
            for shown in ("A\\\\ud800", "\\\\udc00B", "\\\\udfff\\\\udbff", "C\\\\ud800\\\\ud83d", "\U0001f600 \uffff\\u0000\u007f\\\\ud800"):
                self.assertIn(f"the key \\\"{shown}\\\"", text)
                self.assertIn(f'"/{shown}"', text)
            self.assertIn('Unexpected axes combination X: A\\\\ud800 (', text)

    def test_sarif_of_an_unreadable_document_says_that_the_run_failed(self):
        run = json.loads(self.check("--format", "sarif", "missing.json").stdout)["runs"][0]
        self.assertEqual(run["invocations"], [{"executionSuccessful": False}])
        self.assertEqual(run["results"][0]["ruleId"], "unreadable")

    def test_wrong_arguments_exit_with_2(self):
        for arguments in ((), ("--format", "xml", "x"), ("--strct", "x")):
            result = self.check(*arguments)
            self.assertEqual((arguments, result.returncode, result.stdout), (arguments, 2, ""))
            self.assertNotEqual(result.stderr, "")


class Hostile(InDirectory):
    def unreadable(self, name):
        result = self.check(name)
        self.assertEqual(result.returncode, 2)
        return result.stdout

    def test_what_cannot_be_read_is_said_and_exits_with_2(self):
        self.assertIn("missing.json", self.unreadable("missing.json"))
        self.assertIn("it is a directory", self.unreadable("."))

    @program.needs_posix("a named pipe")
    def test_pipes_and_devices_are_refused_instead_of_waited_for(self):
        os.mkfifo(self.directory / "pipe")
        self.assertIn("is no regular file", self.unreadable("pipe"))
        self.assertIn("is no regular file", self.unreadable("/dev/zero"))

    @program.needs_posix("permissions of POSIX")
    def test_a_file_without_permission_is_said_and_exits_with_2(self):
        name = self.document("{}")
        (self.directory / name).chmod(0)
        self.directory.chmod(0o755)
        options = {"user": 65534} if os.geteuid() == 0 else {}
        try:
            result = self.check(name, **options)
        except PermissionError:
            self.skipTest("only this user, who may read every file, can run the program")
        self.assertEqual(result.returncode, 2)
        self.assertIn('Cannot open "document.json": Permission denied', result.stdout)

    def test_what_is_no_json_is_said_with_its_place(self):
        for content, place in (("{\n  \"a\": [,]\n}", (2, 9)), (b"{\"a\": \"\xff\"}", (1, 8)),
                               ('{"a":' * 10_000, (1, 50_001)), ("{} x", (1, 4)), ("{}\0{}", (1, 3))):
            result = self.check("--format", "json", self.document(content))
            self.assertEqual(result.returncode, 1)
            finding = json.loads(result.stdout)[0]["findings"][0]
            self.assertEqual((finding["rule"], finding["line"], finding["column"]), ("not-json", *place))

    def test_what_does_not_even_begin_like_a_document_has_the_message_and_the_place_of_the_loader(self):
        for content, place in (("", (1, 1)), ("[" * 10_000 + "]" * 10_000, (1, 1026)), ("[1]", (1, 1)),
                               ('{"a":' * 2000 + "1" + "}" * 2000, (1, 5122)), ("\x89PNG\r\n\x1a\n", (1, 1))):
            result = self.check("--format", "json", self.document(content))
            self.assertEqual(result.returncode, 1)
            report = json.loads(result.stdout)[0]
            self.assertEqual([finding["rule"] for finding in report["findings"]], ["not-json"])
            finding = report["findings"][0]
            self.assertIn(report["error"], finding["message"])
            self.assertEqual((finding["line"], finding["column"]), place)

    def test_a_thousand_syntax_errors_are_not_all_listed(self):
        findings = self.findings(self.document('{ "a": [' + "1 " * 100_000 + "] }"))
        self.assertEqual([finding["message"] for finding in findings], ["A comma is missing here."] * 100)

    def test_as_deep_as_the_loader_reads(self):
        document = json.loads((EXAMPLES / "valid.json").read_text(encoding="utf-8"))
        document["Debug"] = []
        text = json.dumps(document).replace('"Debug": []', '"Debug": ' + "[" * 1000 + "]" * 1000)
        self.assertEqual([finding["rule"] for finding in self.findings(self.document(text))], ["wrong-type"])

    def test_a_hundred_thousand_findings_are_counted_and_two_hundred_listed(self):
        document = json.loads((EXAMPLES / "valid.json").read_text(encoding="utf-8"))
        document["Tools"]["Summary Table"]["Per step"]["Step"] = [f"Step Tme {i} / s" for i in range(100_000)]
        result = self.check(self.document(json.dumps(document)))
        lines = result.stdout.splitlines()
        self.assertEqual(len(lines), 1 + 201 + 1)
        self.assertIn("99800 more findings of this rule follow, 100000 in all.", lines[-2])

    def test_long_keys_are_cut_off_for_people_and_whole_for_programs(self):
        key = "k/~" * 400_000
        document = json.loads((EXAMPLES / "valid.json").read_text(encoding="utf-8"))
        document["Statistics"] = {key: [{"X": 1}] * 300}
        document["Version"] = 28  # each finding is now looked for among the refusals
        name = self.document(json.dumps(document))
        result = self.check(name)
        self.assertEqual(result.returncode, 1)
        self.assertIn(" at /Statistics/%s…/0/X]" % ("k~1~0" * 16), result.stdout)
        self.assertLess(len(result.stdout), 5000)
        pointers = [finding["pointer"] for finding in self.findings(name)]
        self.assertIn("/Statistics/" + key.replace("~", "~0").replace("/", "~1") + "/0/X", pointers)
        self.assertLess(len(pointers), 30)

    def test_fifty_megabytes_take_bounded_time_and_memory(self):
        document = program.shipped()
        entry = document["Axes combinations"][0]
        document["Filters"]["Tasks"]["Skipped"] += ["x" * 80] * 300_000
        document["Axes combinations"] += [dict(entry, DEFAULT_SCALE_X="linear")] * 55_000
        text = json.dumps(document)
        self.assertGreater(len(text), 50_000_000)
        name = self.document(text)
        result = self.check(name, timeout=240)
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        self.assertIn("55000 in all.", result.stdout)
        if os.name == "posix":
            import resource
            self.assertLess(resource.getrusage(resource.RUSAGE_CHILDREN).ru_maxrss, 2_000_000, "in kB")


class Schema(program.TestCase):
    def test_prints_the_schema_that_is_installed(self):
        installed = program.SHIPPED.parent / "UIConfig.schema.json"
        self.assertEqual(self.output("schema"), installed.read_text(encoding="utf-8"))


def main(needs_example=False):
    """Does what the arguments of the calling script say."""
    global EXAMPLES, DOCS
    print_table = sys.argv[1] == "--table"
    if print_table:
        del sys.argv[1]
    examples_directory, docs, *names = program.take_arguments()
    EXAMPLES, DOCS = pathlib.Path(examples_directory).resolve(), pathlib.Path(docs).resolve()
    if print_table:
        print(table(needs_example), end="")
    else:
        program.run_tests(names)


if __name__ == "__main__":
    main()
