#!/usr/bin/env python3
"""Runs cluiconfig while disks, permissions, other programs and signals are in its way. usage: faults_test.py PROGRAM
SHIPPED_DOCUMENT"""

import concurrent.futures
import contextlib
import errno
import json
import os
import pathlib
import random
import re
import shutil
import subprocess
import sys
import tempfile
import time
import unittest

import program

os.environ["LLVM_PROFILE_FILE"] = os.devnull  # a build that counts lines could not write its own file either

NOBODY = 65534
LEFT_BEHIND = re.compile(r"document\.json\.[A-Za-z]{6}")  # a new file that was about to take its place


class FaultTest(program.TestCase):
    def document(self, text='{"a":1}', directory=None):
        path = (directory or self.directory) / "document.json"
        path.write_text(text)
        return path

    def expect_untouched(self, path, reason, **options):
        """`format --in-place` says the reason, and neither the file nor its directory change."""
        text, status, names = path.read_bytes(), path.stat(), sorted(os.listdir(path.parent))
        message = self.message(2, "format", "--in-place", str(path), **options)
        self.assertTrue(message.startswith(f'Cannot write "{path}", which stays as it is: '), message)
        self.assertIn(reason, message)
        self.assertEqual(message.count("\n"), 1)
        self.assertEqual(path.read_bytes(), text)
        self.assertEqual(sorted(os.listdir(path.parent)), names)
        after = path.stat()
        for fact in ("st_ino", "st_mode", "st_uid", "st_gid", "st_mtime_ns"):
            self.assertEqual(getattr(after, fact), getattr(status, fact), fact)

    def expect_replaced(self, path, **options):
        """`format --in-place` does what it shall, and leaves nothing else behind."""
        names = sorted(os.listdir(path.parent))
        text = self.output("format", str(path))
        result = self.run_program("format", "--in-place", str(path), **options)
        self.assertEqual((result.returncode, result.stdout, result.stderr), (0, "", ""))
        self.assertEqual(path.read_text(), text)
        self.assertEqual(sorted(os.listdir(path.parent)), names)


class PreloadTest(FaultTest):
    """Tests with a library that makes calls of the program fail."""

    @classmethod
    def setUpClass(cls):
        compiler = shutil.which("cc") or shutil.which("gcc") or shutil.which("clang")
        if compiler is None:
            raise unittest.SkipTest("needs a C compiler")
        directory = tempfile.TemporaryDirectory()
        cls.addClassCleanup(directory.cleanup)
        cls.faults = str(pathlib.Path(directory.name) / "faults.so")
        source = pathlib.Path(__file__).with_name("faults.c")
        subprocess.run([compiler, "-shared", "-fPIC", "-Wall", "-Werror", "-o", cls.faults, str(source), "-ldl"],
                       check=True, timeout=60)

    def fault(self, call, error=0, count=1, command=None):
        environment = {**os.environ, "LD_PRELOAD": self.faults, "FAULT_CALL": call, "FAULT_ERRNO": str(error),
                       "FAULT_COUNT": str(count),
                       "ASAN_OPTIONS": os.environ.get("ASAN_OPTIONS", "") + ":verify_asan_link_order=0"}
        return {"env": {**environment, "FAULT_RUN": command} if command else environment}


@program.needs_posix("calls that fail")
class CallsThatFail(PreloadTest):
    def test_leave_the_file_as_it_is(self):
        path = self.document(json.dumps(list(range(100_000))))
        for call, count in (("write", 1), ("write", 3), ("fsync", 1), ("linkat", 1), ("linkat", 2), ("rename", 1)):
            for error in (errno.EIO, errno.ENOSPC, errno.EDQUOT, errno.EROFS):
                with self.subTest(call=call, count=count, error=errno.errorcode[error]):
                    self.expect_untouched(path, os.strerror(error), **self.fault(call, error, count))
        self.expect_replaced(path)

    def test_for_a_file_without_a_name_are_not_needed(self):
        path = self.document()
        self.expect_replaced(path, **self.fault("open64", errno.EOPNOTSUPP))

    def test_fail_to_close_what_is_on_the_disk_already(self):
        path = self.document()
        self.expect_replaced(path, **self.fault("close", errno.EIO))

    def test_are_no_errors_where_a_file_system_cannot_wait_for_its_disk(self):
        path = self.document()
        self.expect_replaced(path, **self.fault("fsync", errno.EINVAL))

    def test_do_not_hide_that_somebody_else_has_changed_the_file(self):
        """Others write while the new file is waited for."""
        for change, text in (("echo '[2]' > {0}", "[2]\n"),  # another size
                             ("echo '{{\"b\":1}}' > {0}", '{"b":1}\n'),  # as large as before
                             ("echo '[3]' > {0}.new; mv {0}.new {0}", "[3]\n"),
                             (": > {0}", "")):
            path = self.document('{"a":1}\n')
            message = self.message(2, "format", "--in-place", str(path),
                                   **self.fault("fsync", command=change.format(path)))
            self.assertEqual(message, f'Cannot write "{path}", which stays as it is: somebody has changed it meanwhile; '
                                      "format it once more\n")
            self.assertEqual(path.read_text(), text)
            self.assertEqual(os.listdir(self.directory), ["document.json"])

    def test_do_not_bring_a_file_back_that_somebody_else_has_removed(self):
        path = self.document()
        self.assertIn("No such file", self.message(2, "format", "--in-place", str(path),
                                                   **self.fault("fsync", command=f"rm {path}")))
        self.assertEqual(os.listdir(self.directory), [])

    def test_do_not_keep_a_file_from_being_replaced_that_is_only_touched(self):
        path = self.document()
        self.expect_replaced(path, **self.fault("fsync", command=f"touch {path}"))

    def test_start_no_thread_or_too_few_for_a_search_that_does_without(self):
        path = self.file("lines.txt", b"a cv\n" * 300_000)
        for count in (1, 2):
            self.assertEqual(self.run_program("search", "cv", path, **self.fault("pthread_create", count=count)).stdout,
                             "a cv\n" * 300_000)


@program.needs_posix("owners and links of POSIX")
class OwnersAndLinks(FaultTest):
    def test_symbolic_link_stays_and_its_file_is_replaced(self):
        (self.directory / "elsewhere").mkdir()
        path = self.document(directory=self.directory / "elsewhere")
        first, second = self.directory / "first.json", self.directory / "second.json"
        first.symlink_to("second.json")
        second.symlink_to("elsewhere/document.json")
        self.expect_replaced(first)
        self.assertEqual((os.readlink(first), os.readlink(second)), ("second.json", "elsewhere/document.json"))
        self.assertFalse(path.is_symlink())
        self.assertEqual(os.listdir(path.parent), ["document.json"])
        self.assertEqual(self.output("format", "--check", str(path)), "")

    def test_link_that_leads_nowhere_makes_no_file(self):
        link = self.directory / "link.json"
        link.symlink_to("missing.json")
        self.assertIn("Cannot open", self.message(2, "format", "--in-place", str(link)))
        self.assertEqual(os.listdir(self.directory), ["link.json"])

    def test_other_names_of_a_file_keep_the_old_text(self):
        path = self.document()
        other = self.directory / "other.json"
        os.link(path, other)
        self.expect_replaced(path)
        self.assertEqual((other.read_text(), other.stat().st_nlink, path.stat().st_nlink), ('{"a":1}', 1, 1))

    def test_all_permissions_stay(self):
        path = self.document()
        for mode in (0o600, 0o640, 0o666, 0o664, 0o755, 0o2664, 0o4755):
            path.write_text('{"a":1}')
            path.chmod(mode)
            mode = path.stat().st_mode
            self.expect_replaced(path, umask=0o077)
            self.assertEqual(oct(path.stat().st_mode), oct(mode))

    def needs_root(self):
        if os.geteuid() != 0:
            self.skipTest("needs root, who gives files away")

    def as_nobody(self):
        """Options to run the program as somebody with few rights, in a directory where he has all."""
        self.needs_root()
        options = {"user": NOBODY, "group": NOBODY, "extra_groups": []}
        try:
            program.run("--version", **options).check_returncode()
        except (OSError, subprocess.CalledProcessError) as error:
            self.skipTest(f"needs a program that everybody may run: {error}")
        os.chown(self.directory, NOBODY, NOBODY)
        return options

    def test_owner_and_group_stay_when_root_formats(self):
        self.needs_root()
        path = self.document()
        path.chmod(0o640)
        os.chown(path, 1234, 4321)
        mode = path.stat().st_mode
        self.expect_replaced(path)
        status = path.stat()
        self.assertEqual((status.st_uid, status.st_gid, status.st_mode), (1234, 4321, mode))

    def test_group_stays_where_one_is_a_member(self):
        options = {**self.as_nobody(), "extra_groups": [4321]}
        path = self.document()
        os.chown(path, NOBODY, 4321)
        self.expect_replaced(path, **options)
        self.assertEqual((path.stat().st_uid, path.stat().st_gid), (NOBODY, 4321))

    def test_file_whose_owner_or_group_cannot_stay_is_left_alone(self):
        options = self.as_nobody()
        path = self.document()
        path.chmod(0o666)
        for owner, group in ((1234, NOBODY), (NOBODY, 4321)):
            os.chown(path, owner, group)
            self.expect_untouched(path, "the new file cannot have its owner and its group "
                                        f"({owner}:{group}): Operation not permitted", **options)

    def test_what_may_not_be_written_is_left_alone(self):
        options = self.as_nobody()
        path = self.document()
        path.chmod(0o444)
        self.expect_untouched(path, "is not writable", **options)  # its owner protects it
        path.chmod(0o666)
        os.chown(path, NOBODY, NOBODY)
        self.directory.chmod(0o555)
        self.expect_untouched(path, "Permission denied", **options)  # a directory that takes no new file

    def test_file_that_nobody_may_change_is_left_alone(self):
        self.needs_root()
        path = self.document()
        if shutil.which("chattr") is None or subprocess.run(["chattr", "+i", path], capture_output=True).returncode != 0:
            self.skipTest("needs a file system with files that cannot be changed")
        self.addCleanup(subprocess.run, ["chattr", "-i", path], check=True)
        self.expect_untouched(path, "is not writable")


@program.needs_posix("disks of a chosen size")
class FullDisk(FaultTest):
    def disk(self, options):
        """A small disk of the test's own."""
        path = self.directory / "disk"
        path.mkdir()
        if os.geteuid() != 0:
            self.skipTest("needs root, who mounts disks")
        mounting = subprocess.run(["mount", "-t", "tmpfs", "-o", options, "tmpfs", path], capture_output=True, text=True)
        if mounting.returncode != 0:
            self.skipTest(f"needs a disk that can be mounted: {mounting.stderr.strip()}")
        self.addCleanup(subprocess.run, ["umount", path], check=True)
        return path

    def test_leaves_the_file_as_it_is(self):
        disk = self.disk("size=2m")
        path = self.document(json.dumps(["x" * 60] * 7000, separators=(",", ":")), disk)  # 450 kB
        size = len(self.output("format", str(path)))
        page, filler = os.sysconf("SC_PAGESIZE"), disk / "filler"
        free = lambda: shutil.disk_usage(disk).free
        for room in (0, 1, size // 3, size // 2, size - page):  # pages are rounded up
            filler.write_bytes(b"")
            filler.write_bytes(bytes(free() - room // page * page))
            self.assertEqual(free(), room // page * page)
            self.expect_untouched(path, os.strerror(errno.ENOSPC))
            self.assertEqual(free(), room // page * page)
        filler.write_bytes(b"")
        filler.write_bytes(bytes(free() - size - page))
        self.expect_replaced(path)

    def test_without_room_for_another_file_is_a_full_disk(self):
        disk = self.disk("size=2m,nr_inodes=5")
        path = self.document(directory=disk)
        count = 0
        with contextlib.suppress(OSError):
            while True:
                (disk / str(count)).write_bytes(b"")
                count += 1
        self.assertGreater(count, 0)
        self.expect_untouched(path, os.strerror(errno.ENOSPC))
        (disk / "0").unlink()
        self.run_program("format", "--in-place", str(path))  # whether a second name takes room is the kernel's affair
        self.assertIn(path.read_text(), ('{"a":1}', '{\n    "a": 1\n}\n'))
        self.assertEqual(sorted(os.listdir(disk)), [str(name) for name in range(1, count)] + ["document.json"])

    def test_that_has_become_read_only_leaves_the_file_as_it_is(self):
        disk = self.disk("size=1m")
        path = self.document(directory=disk)
        subprocess.run(["mount", "-o", "remount,ro", disk], check=True)
        self.expect_untouched(path, "is not writable")

    def test_limit_on_the_size_of_files_is_an_error_and_no_signal(self):
        import resource
        path = self.document(json.dumps(list(range(100_000))))
        self.expect_untouched(path, os.strerror(errno.EFBIG),
                              preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (100_000, 100_000)))


@program.needs_posix("signals that nothing can hold up")
class Kill(PreloadTest):
    KILLS = int(os.environ.get("CLUICONFIG_KILLS", "1000"))

    def test_at_any_moment_leaves_the_old_file_or_the_new_one(self):
        old = json.dumps(list(range(60_000)), separators=(",", ":"))
        new = self.output("format", str(self.document(old)))

        def kill(worker, options):
            directory = self.directory / str(worker)
            directory.mkdir()
            path = self.document(old, directory)
            moments, longest = random.Random(worker), 0.1
            seen = dict.fromkeys(("killed", "old", "new", "left behind"), 0)
            while seen["killed"] < self.KILLS // 2:
                process = subprocess.Popen([program.PROGRAM, "format", "--in-place", str(path)], **options)
                time.sleep(moments.uniform(0, longest))
                process.kill()
                isKilled = process.wait() != 0
                longest *= 1.002 if isKilled else 0.995  # so that about one run of four comes to its end
                text = path.read_text()
                self.assertTrue(text == old or text == new, "neither the old text nor the new one")
                seen["killed"] += isKilled
                seen["old" if text == old else "new"] += 1
                for name in os.listdir(directory):
                    if name != "document.json":
                        self.assertRegex(name, LEFT_BEHIND)
                        (directory / name).unlink()
                        seen["left behind"] += 1
                if text == new:
                    path.write_text(old)
            return seen

        # One on a file system with files without names, if the test has one, and one without.
        options = ({}, self.fault("open64", errno.EOPNOTSUPP))
        with concurrent.futures.ThreadPoolExecutor(2) as workers:
            seen = list(workers.map(kill, range(2), options))
        print(seen, file=sys.stderr)
        for each in seen:
            self.assertGreater(min(each["old"], each["new"]), 0)
        self.assertGreater(seen[1]["left behind"], 0)


@program.needs_posix("streams that are closed")
class Streams(FaultTest):
    """Every command that prints something, where its output goes nowhere."""

    def setUp(self):
        super().setUp()
        other = program.shipped()
        other["Colors"]["Custom colors"] = []
        other, shipped = self.file("other.json", other), str(program.SHIPPED)
        catalogue = self.file("catalogue.json", (program.SHIPPED.parent / "DataArrays.json").read_bytes())
        self.commands = [(["--help"], 0), (["--version"], 0), (["help", "show"], 0), (["show"], 0), (["show", "--list-sections"], 0),
                         (["show", "--format", "json"], 0), (["arrays"], 0), (["axes"], 0), (["axes", "Test Time / s"], 0),
                         (["units"], 0), (["diff", shipped, other], 1), (["diff", "--format", "json", shipped, other], 1),
                         (["format", shipped], 0), (["search", "nyquist", shipped], 0), (["check", shipped], 0),
                         (["check", catalogue], 1), (["check", "--format", "json", shipped], 0),
                         (["check", "--format", "sarif", shipped], 0), (["check", "--list-rules"], 0),
                         (["check-catalogue", catalogue], 0), (["catalogue"], 0), (["schema"], 0), (["schema", "--names"], 0)]

    def expect(self, exit_code, errors, **options):
        for arguments, usual in self.commands:
            with self.subTest(arguments):
                result = subprocess.run([program.PROGRAM, *arguments], text=True, stdin=subprocess.DEVNULL, timeout=60,
                                        **{"stdout": subprocess.DEVNULL, "stderr": subprocess.PIPE, **options})
                self.assertEqual(result.returncode, usual if exit_code is None else exit_code)
                if result.stderr is not None:
                    self.assertEqual(result.stderr, errors)

    def test_commands_print_something(self):
        listed = set(re.findall(r"^  ([a-z-]+) ", self.output("--help").split("Subcommands:")[1].split("\n\n")[0], re.MULTILINE))
        self.assertEqual({arguments[0] for arguments, _ in self.commands} - {"--help", "--version"}, listed)
        for arguments, exit_code in self.commands:
            result = self.run_program(*arguments)
            self.assertEqual((result.returncode, result.stderr), (exit_code, ""), arguments)
            self.assertNotEqual(result.stdout, "", arguments)

    def test_full_device_is_an_error(self):
        if not os.path.exists("/dev/full"):
            self.skipTest("needs /dev/full")
        with open("/dev/full", "wb") as full:
            self.expect(2, f"standard output: {os.strerror(errno.ENOSPC)}\n", stdout=full)

    def test_reader_that_has_gone_is_no_error(self):
        reading, writing = os.pipe()
        os.close(reading)
        with os.fdopen(writing, "wb") as pipe:
            self.expect(None, "", stdout=pipe)

    def test_closed_output_is_an_error(self):
        self.expect(2, f"standard output: {os.strerror(errno.EBADF)}\n", preexec_fn=lambda: os.close(1))

    def test_closed_input_disturbs_nobody_who_does_not_read_it(self):
        self.expect(None, "", preexec_fn=lambda: os.close(0))
        for arguments in (["check", "-"], ["show", "-"], ["format", "-"], ["search", "x"]):
            self.assertEqual(self.message(2, *arguments, preexec_fn=lambda: os.close(0)),
                             f"standard input: {os.strerror(errno.EBADF)}\n")

    def test_closed_errors_disturb_nobody(self):
        self.expect(None, "", preexec_fn=lambda: os.close(2))

    def test_reader_of_errors_that_has_gone_does_not_change_the_exit_code(self):
        reading, writing = os.pipe()
        os.close(reading)
        with os.fdopen(writing, "wb") as pipe:
            for exit_code, arguments in ((2, ["format", "missing.json"]), (1, ["show", "missing.json"]), (2, ["shwo"])):
                result = subprocess.run([program.PROGRAM, *arguments], stdout=subprocess.DEVNULL, stderr=pipe, timeout=60)
                self.assertEqual(result.returncode, exit_code)

    def test_messages_go_into_no_file_where_streams_are_closed(self):
        path = self.document()

        def close_all():
            for stream in range(3):
                os.close(stream)
        for arguments, exit_code in ((["format", "--in-place", str(path)], 0), (["format", str(path)], 2), (["show", str(path)], 1)):
            result = subprocess.run([program.PROGRAM, *arguments], preexec_fn=close_all, timeout=60)
            self.assertEqual(result.returncode, exit_code)
            self.assertEqual(path.read_text(), '{\n    "a": 1\n}\n')


if __name__ == "__main__":
    program.main()
