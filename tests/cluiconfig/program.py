"""What the tests of cluiconfig share: the program, the shipped documents, and a directory for each test."""

import json
import os
import pathlib
import re
import shutil
import struct
import subprocess
import sys
import tempfile
import threading
import unittest

IS_WINDOWS = os.name != "posix" or os.environ.get("CLUICONFIG_SYSTEM") == "Windows"
PROGRAM = ""
COMPLETION = pathlib.Path(__file__).resolve().parents[2] / "tools" / "cluiconfig" / "completion.bash"
SHIPPED = pathlib.Path()  # the shipped document; its catalogue stands beside it


def take_arguments():
    """Takes PROGRAM and SHIPPED_DOCUMENT from the calling script's arguments, and returns what follows them."""
    global PROGRAM, SHIPPED
    PROGRAM, SHIPPED = str(pathlib.Path(sys.argv[1]).resolve()), pathlib.Path(sys.argv[2]).resolve()
    return sys.argv[3:]


def main():
    """Runs the tests of the calling script. usage: SCRIPT PROGRAM SHIPPED_DOCUMENT [TEST...]"""
    run_tests(take_arguments())


def run_tests(names=()):
    unittest.main(module="__main__", argv=[sys.argv[0], "-v", *names])


def needs_posix(what):
    """For tests of what only a program for a POSIX system can be given; a Windows program on one is another matter."""
    return unittest.skipIf(IS_WINDOWS, f"needs {what}, which no Windows program gets")


def shipped():
    return json.loads(SHIPPED.read_text(encoding="utf-8"))


def run(*arguments, timeout=120, **options):
    return subprocess.run([PROGRAM, *arguments], capture_output=True, text=True, encoding="utf-8", timeout=timeout,
                          **options)


class TestCase(unittest.TestCase):
    def setUp(self):
        directory = tempfile.TemporaryDirectory()
        self.addCleanup(directory.cleanup)
        self.directory = pathlib.Path(directory.name)

    def file(self, name, content):
        """A file of the test's own, with bytes, a text, or what json.dumps() makes of anything else."""
        path = self.directory / name
        if not isinstance(content, (bytes, str)):
            content = json.dumps(content)
        path.write_bytes(content if isinstance(content, bytes) else content.encode())
        return str(path)

    def run_program(self, *arguments, **options):
        return run(*arguments, **options)

    def output(self, *arguments):
        """What the program prints when nothing is wrong."""
        result = self.run_program(*arguments)
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        return result.stdout

    def tables(self, *arguments):
        return json.loads(self.output(*arguments, "--format", "json"))

    def message(self, exit_code, *arguments, **options):
        """What the program says when it refuses, which is all that it says."""
        result = self.run_program(*arguments, **options)
        self.assertEqual((result.returncode, result.stdout), (exit_code, ""))
        return result.stderr

    def on_terminal(self, *arguments, columns=80, exit_code=0, environment=None):
        """What a terminal gets from the program."""
        return self.screen_of([PROGRAM, *arguments], columns, exit_code, environment)

    def screen_of(self, command, columns, exit_code, environment, keys=None):
        """What a terminal gets from a command, lines ending with a line feed."""
        try:
            controller, terminal = os.openpty()
        except OSError as error:
            self.skipTest(f"no pseudo terminal to be had here: {error}")
        import fcntl
        import termios
        fcntl.ioctl(terminal, termios.TIOCSWINSZ, struct.pack("HHHH", 24, columns, 0, 0))
        inherited = {name: value for name, value in os.environ.items() if name not in ("NO_COLOR", "COLUMNS")}
        with os.fdopen(controller, "rb", buffering=0) as screen:
            process = subprocess.Popen(command, stdin=terminal if keys else None, stdout=terminal, stderr=terminal,
                                       cwd=self.directory, start_new_session=True,
                                       env={**inherited, "TERM": "xterm", **(environment or {})})
            os.close(terminal)
            end = threading.Timer(20, process.kill)
            end.start()
            if keys:
                os.write(controller, keys.encode())
            output = b""
            try:
                while piece := screen.read(4096):
                    output += piece
            except OSError:  # how a terminal says that nobody writes to it any more
                pass
            end.cancel()
            self.assertEqual(process.wait(60), exit_code)
        return output.decode().replace("\r\n", "\n")

    def completed(self, *words):
        """What bash offers for the last word, or None where there is no bash."""
        bash = shutil.which("bash")
        if bash is None:
            self.skipTest("needs bash")
        script = f"source '{COMPLETION}'; COMP_WORDS=(\"$@\"); COMP_CWORD=$(($# - 1)); _cluiconfig; [[ ! ${{COMPREPLY[*]}} ]] || printf '%s\\n' \"${{COMPREPLY[@]}}\""
        result = subprocess.run([bash, "-c", script, "bash", PROGRAM, *words], capture_output=True, text=True,
                                cwd=self.directory, timeout=60)
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        return result.stdout.split("\n")[:-1]

    def typed(self, line):
        """The words of a line after a person has typed it in bash, tab keys included."""
        bash = shutil.which("bash")
        if bash is None:
            self.skipTest("needs bash")
        programs = self.directory / "bin"
        if not programs.exists():
            programs.mkdir()
            (programs / "cluiconfig").symlink_to(PROGRAM)
        # Instead of the command, one that prints its words is run: it is typed at the line's beginning.
        screen = self.screen_of([bash, "--noprofile", "--rcfile", str(COMPLETION), "-i"], 2000, 0,
                                {"PATH": f"{programs}:{os.environ['PATH']}", "TERM": "dumb"},
                                keys=f"{line}\x01printf '<%s>\\n' \nexit\n")
        return re.findall(r"^<(.*)>$", screen, re.MULTILINE)
