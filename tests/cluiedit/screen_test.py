#!/usr/bin/env python3
"""Uses cluiedit as a person does, on a screen: types, saves, loses the program, and gets the text back.

usage: screen_test.py CLUIEDIT DOCUMENT
"""

import os
import pathlib
import shutil
import signal
import subprocess
import sys
import tempfile
import time

PATIENCE = 30  # s


def wait_for(what, condition):
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        result = condition()
        if result:
            return result
        time.sleep(0.1)
    raise AssertionError(f"{what}: not within {PATIENCE} s")


class Screen:
    """An X server without a screen."""

    def __enter__(self):
        read_end, write_end = os.pipe()
        self.server = subprocess.Popen(["Xvfb", "-displayfd", str(write_end), "-screen", "0", "1280x800x24", "-noreset"],
                                       pass_fds=[write_end], stderr=subprocess.DEVNULL)
        os.close(write_end)
        with os.fdopen(read_end) as numbers:
            self.display = ":" + numbers.readline().strip()
        return self

    def __exit__(self, *_):
        self.server.terminate()
        self.server.wait()

    def xdotool(self, *arguments):
        result = subprocess.run(["xdotool", *arguments], env={**os.environ, "DISPLAY": self.display}, text=True,
                                capture_output=True)
        return result.stdout.split()


class Editor:
    def __init__(self, screen, program, home, *arguments):
        self.screen = screen
        environment = {**os.environ, "DISPLAY": screen.display, "QT_QPA_PLATFORM": "xcb", "HOME": home,
                       "XDG_CONFIG_HOME": home, "XDG_DATA_HOME": home, "XDG_CACHE_HOME": home, "LC_ALL": "C.UTF-8"}
        self.process = subprocess.Popen([program, *arguments], env=environment)
        self.window = wait_for("a window", lambda: self.windows("cluiedit"))[0]
        screen.xdotool("windowfocus", "--sync", self.window)

    def windows(self, title):
        if self.process.poll() is not None:
            raise AssertionError(f"the editor has ended: {self.process.returncode}")
        return self.screen.xdotool("search", "--all", "--onlyvisible", "--pid", str(self.process.pid), "--name", title)

    def wait_for_title(self, title):
        wait_for(f"the title {title!r}", lambda: self.windows(title))

    def press(self, *keys):
        self.screen.xdotool("key", "--clearmodifiers", "--delay", "30", *keys)

    def type(self, text):
        self.screen.xdotool("type", "--delay", "30", text)

    def kill(self):
        self.process.send_signal(signal.SIGKILL)
        self.process.wait()

    def quit(self):
        self.press("ctrl+q")
        assert self.process.wait(PATIENCE) == 0, "the exit code is not 0"


def main(program, shipped):
    missing = [name for name in ("Xvfb", "xdotool") if not shutil.which(name)]
    if missing:
        print(f"{' and '.join(missing)} not found")
        return 77
    with tempfile.TemporaryDirectory() as home, Screen() as screen:
        document = pathlib.Path(home, "UIConfig.json")
        shutil.copy(shipped, document)
        before = document.read_text(encoding="utf-8")

        editor = Editor(screen, program, home, str(document))
        editor.wait_for_title("0 errors, 0 warnings")
        editor.press("ctrl+0", "ctrl+Home", "Down", "End", "BackSpace")  # the comma behind "Version": 29
        editor.wait_for_title("1 error")
        editor.type(",")
        editor.wait_for_title("0 errors, 0 warnings")
        editor.press("Home")
        editor.type(" ")
        editor.press("ctrl+s")
        wait_for("the saved text", lambda: document.read_text(encoding="utf-8") != before)
        saved = document.read_text(encoding="utf-8")
        assert saved.replace(" ", "") == before.replace(" ", ""), "another text than the one that was typed"

        editor.press("Delete")  # a quote
        editor.wait_for_title("1 error,")
        unsaved = pathlib.Path(home, "Cellaro", "cluiedit", "unsaved")
        wait_for("the unsaved text on the disk", lambda: unsaved.is_dir() and list(unsaved.glob("*.unsaved")))
        editor.kill()
        assert document.read_text(encoding="utf-8") == saved, "the killed editor changed the file"

        editor = Editor(screen, program, home, str(document))
        editor.wait_for_title("0 errors, 0 warnings")
        editor.press("alt+i")
        editor.wait_for_title("1 error,")
        editor.press("ctrl+s")
        wait_for("the recovered text", lambda: document.read_text(encoding="utf-8") != saved)
        assert not list(unsaved.glob("*.unsaved")), "what was recovered is still offered"
        editor.quit()
    return 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
