# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""Runs the real program on a virtual screen, moves its mouse, presses its keys and looks at what it shows."""

import argparse
import json
import os
import re
import shutil
import signal
import socket
import string
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

DEADLINE = 20  # seconds until something that should happen counts as not happening


def wait_for(condition, what):
    """The first value of `condition` that counts as true; fails with `what` after the deadline."""
    end = time.monotonic() + DEADLINE
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > end:
            raise AssertionError("waited in vain for " + (what() if callable(what) else what))
        time.sleep(0.02)


class Screen:
    """An X server of its own. `options` are Xvfb's."""

    def __init__(self, size="1280x720", options=("-noreset",)):
        reader, writer = os.pipe()
        command = ["Xvfb", "-displayfd", str(writer), "-screen", "0", size + "x24", "-nolisten", "tcp", *options]
        self.process = subprocess.Popen(command, pass_fds=[writer], stderr=subprocess.DEVNULL)
        os.close(writer)
        with os.fdopen(reader) as numbers:
            self.name = ":" + numbers.readline().strip()

    def do(self, *arguments):
        """Runs xdotool."""
        subprocess.run(["xdotool", *map(str, arguments)], check=True, timeout=DEADLINE, stdout=subprocess.DEVNULL,
                       env={**os.environ, "DISPLAY": self.name})

    def close(self):
        self.process.terminate()
        self.process.wait()


class Profile:
    """A folder with the settings and the workspace of one test."""

    def __init__(self):
        self.folder = Path(tempfile.mkdtemp(prefix="nuvex-e2e-"))
        self.config = self.folder / "config/Nuvex/Nuvex.conf"
        self.work = self.folder / "data/Nuvex/Nuvex/PlayerQML/Work"

    def write_settings(self, **settings):
        lines = ["[General]"] + [f'{key}="{self._escaped(value)}"' for key, value in settings.items()]
        self.config.parent.mkdir(parents=True, exist_ok=True)
        self.config.write_text("\n".join(lines) + "\n", "utf-8")

    @staticmethod
    def _escaped(text):
        """As the settings store writes it: a hexadecimal digit after an escape is escaped as well."""
        escaped = ""
        for character in text:
            after_escape = re.search(r"\\x[0-9a-f]+$", escaped) and character in string.hexdigits
            plain = " " <= character < "\x7f" and not after_escape
            escaped += re.sub(r'(["\\])', r"\\\1", character) if plain else f"\\x{ord(character):x}"
        return escaped

    def setting(self, key):
        """The stored value as text; None when there is none."""
        if not self.config.exists():
            return None
        for line in self.config.read_text("utf-8", "replace").splitlines():
            name, _, value = line.partition("=")
            if name == key:
                return re.sub(r"\\x([0-9a-f]{1,4})", lambda code: chr(int(code[1], 16)), value)
        return None

    def add_project(self, name, document="import QtQuick 2.15\nRectangle { color: 'teal' }\n"):
        folder = self.work / name
        folder.mkdir(parents=True)
        if document is not None:
            (folder / "main.qml").write_text(document, "utf-8")
        return folder

    def remove(self):
        shutil.rmtree(self.folder, ignore_errors=True)


class Program:
    """The running program. What it shows is asked anew each time, so it may restart itself meanwhile."""

    def __init__(self, setup, screen, profile, *arguments, environment=None):
        self.screen = screen
        self.profile = profile
        self.nudge = 4
        self.closed = False
        self.probe = Path(tempfile.mkdtemp(dir=profile.folder))
        self.log_file = profile.folder / "log"
        fake_tools = profile.folder / "bin"
        self._make_link_opener(fake_tools)
        environment = {**os.environ, "DISPLAY": screen.name, "NUVEX_PROBE": str(self.probe),
                       "QT_PLUGIN_PATH": setup.plugins, "QT_QPA_GENERIC_PLUGINS": "probe",
                       "XDG_RUNTIME_DIR": str(profile.folder), "LC_ALL": "C.UTF-8", "ASAN_OPTIONS": "detect_leaks=0",
                       "PATH": f"{fake_tools}:{os.environ['PATH']}", **(environment or {})}
        with self.log_file.open("wb") as log:
            self.process = subprocess.Popen([setup.program, "--profile", str(profile.folder), *arguments],
                                            env=environment, stdout=log, stderr=log)
        try:
            self.focus()
        except BaseException:
            self.close()
            raise

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()

    def _make_link_opener(self, folder):
        self.opened_links = self.profile.folder / "links"
        folder.mkdir(exist_ok=True)
        opener = folder / "xdg-open"
        opener.write_text(f'#!/bin/sh\necho "$1" >> "{self.opened_links}"\n')
        opener.chmod(0o755)

    def focus(self):
        """Gives the window the keyboard, as a window manager would."""
        self.wait_shown()
        wait_for(self._take_focus, "the keyboard focus")

    def _take_focus(self):
        """One try: right after the start the window may not be there for the X server yet."""
        self.screen.do("search", "--all", "--onlyvisible", "--pid", self.tree()["pid"], "--class", ".", "windowfocus")
        return self.tree().get("active")

    # What it shows

    def tree(self):
        """The probe's view of the window; {} while there is none."""
        return self._ask("")

    def _ask(self, touches):
        for place in self.probe.iterdir():
            try:
                with socket.socket(socket.AF_UNIX) as connection:
                    connection.settimeout(DEADLINE)
                    connection.connect(str(place))
                    connection.sendall(touches.encode() + b"\n")
                    with connection.makefile() as lines:
                        return json.loads(lines.readline())
            except (OSError, ValueError):
                continue  # that process has ended, or is about to
        return {}

    def items(self):
        return self.tree().get("items", [])

    def page(self):
        return self.tree().get("page", "")

    def texts(self):
        return [item["text"] for item in self.items() if item["text"]]

    def wait_shown(self):
        wait_for(lambda: self.tree().get("page"), lambda: "a window; log:\n" + self.log())

    def wait_page(self, name):
        wait_for(lambda: self.page() == name, lambda: f"{name}, not {self.page()}; log:\n{self.log()}")

    def wait_text(self, part):
        wait_for(lambda: any(part in text for text in self.texts()), lambda: f"'{part}' in {self.texts()}")

    def find(self, label):
        """The item to press for a text, an icon's name, a tool tip or an object name; None without one."""
        fits = [item for item in self.items() if label in (item["text"], item["icon"], item["tip"], item["name"])]
        fits.sort(key=lambda item: not item["clickable"])
        return fits[0] if fits else None

    def buttons(self):
        """What one can press, by its label: text, else tool tip, else icon."""
        return [item["text"] or item["tip"] or item["icon"] or item["name"] for item in self.items()
                if item["clickable"] and item["enabled"]]

    def local_port(self):
        """Where players of the local network connect to."""
        lines = subprocess.run(["ss", "-Hltnp"], capture_output=True, text=True, check=True).stdout.splitlines()
        ports = [line.split()[3].rsplit(":", 1)[1] for line in lines if f"pid={self.process.pid}," in line]
        return int(ports[0]) if ports else None

    def log(self):
        return self.log_file.read_text("utf-8", "replace")

    def wait_log(self, part):
        wait_for(lambda: part in self.log(), lambda: f"'{part}' in the log:\n{self.log()}")

    def alive(self):
        return self.process.poll() is None

    # What is done to it

    def click(self, label):
        x, y, width, height = wait_for(lambda: self.find(label), lambda: f"'{label}' on {self.page()}")["rect"]
        # Now left, now right of the middle, so that two clicks are never taken for a double click.
        self.nudge = -self.nudge
        self.screen.do("mousemove", round(x + width / 2) + self.nudge, round(y + height / 2), "click", 1)

    def touch(self, *fingers):
        """Fingers on the screen, each a list [x, y, state]; every finger that is down is named, in the same order."""
        self._ask(json.dumps([[number, round(x), round(y), state] for number, (x, y, state) in enumerate(fingers)]))

    def swipe(self, *ways):
        """Moves a finger along each way, from its first to its last point; they land one after the other."""
        steps = 8
        for landed in range(len(ways)):
            self.touch(*[[*start, "move"] for start, _ in ways[:landed]], [*ways[landed][0], "press"])
            time.sleep(0.03)
        for step in range(1, steps + 1):
            self.touch(*[[*(a + (b - a) * step / steps for a, b in zip(start, end)), "move"] for start, end in ways])
            time.sleep(0.03)
        self.touch(*[[*end, "release"] for _, end in ways])

    def tap(self, label):
        """Taps with a finger on an item of that label, or on a point."""
        if isinstance(label, str):
            x, y, width, height = wait_for(lambda: self.find(label), lambda: f"'{label}' on {self.page()}")["rect"]
            label = x + width / 2, y + height / 2
        self.touch([*label, "press"])
        time.sleep(0.05)
        self.touch([*label, "release"])

    def key(self, *keys):
        self.screen.do("key", *keys)

    def type(self, text):
        self.screen.do("type", text)

    def tab_to(self, label):
        """Goes to a control with the Tab key."""
        for _ in range(40):
            item = self.find(label)
            if item and item["focus"]:
                return
            before = self._focused()
            self.key("Tab")
            wait_for(lambda: self._focused() != before or self._has_focus(label), f"the focus to leave {before}")
        raise AssertionError(f"the Tab key does not reach '{label}' on {self.page()}")

    def _has_focus(self, label):
        item = self.find(label)
        return item is not None and item["focus"]

    def _focused(self):
        return [(item["text"], item["icon"], item["rect"]) for item in self.items() if item["focus"]]

    def press(self, label, by_keyboard=False):
        if by_keyboard:
            self.tab_to(label)
            self.key("Return")
        else:
            self.click(label)

    def wait_restarted(self, old_pid):
        """Waits for the process that replaces this one."""
        self.process.wait(DEADLINE)
        wait_for(lambda: self.tree().get("pid") not in (None, old_pid),
                 lambda: "the restarted program; log:\n" + self.log())
        self.focus()

    def end(self):
        """Asks the program to end, as who shuts the machine down does, and waits until it has."""
        self.process.terminate()
        self.process.wait(DEADLINE)

    def close(self):
        """Ends the program, also when it has restarted as another process; does nothing the second time."""
        if self.closed:
            return
        self.closed = True
        restarted = self.tree().get("pid")
        self.process.kill()
        self.process.wait()
        if restarted not in (None, self.process.pid):
            os.kill(restarted, signal.SIGKILL)
            wait_for(lambda: not Path(f"/proc/{restarted}").exists(), "the end of the program")


def read_setup():
    """The command line of a test: where the program and the probe are; the rest is unittest's."""
    parser = argparse.ArgumentParser()
    parser.add_argument("--program", required=True)
    parser.add_argument("--plugins", required=True)
    parser.add_argument("--killpoint", help="the library of tests/support/killpoint.cpp")
    parser.add_argument("--localcloud", help="the cloud on this machine")
    return parser.parse_known_args()


class ProgramTest(unittest.TestCase):
    """A test of the running program, with a profile of its own."""
    setup = None
    screen = None

    def setUp(self):
        self.profile = Profile()
        self.addCleanup(self.profile.remove)

    def start(self, *arguments, environment=None):
        """Starts the program; it ends with the test at the latest."""
        program = Program(self.setup, self.screen, self.profile, *arguments, environment=environment)
        self.addCleanup(program.close)
        return program

    def start_with_killpoint(self, **settings):
        """Starts the program on a disk that is slow (pause=MS a change) or with a kill (at=CALL)."""
        if not self.setup.killpoint:
            self.skipTest("nothing can be preloaded into this build")
        return self.start(environment={"LD_PRELOAD": self.setup.killpoint, "KILLPOINT_BELOW": str(self.profile.work),
                                       **{"KILLPOINT_" + name.upper(): str(value) for name, value in settings.items()}})


def run_tests(**screen):
    """Runs the tests of the main module on a screen of their own; `screen` are Screen's arguments."""
    ProgramTest.setup, rest = read_setup()
    ProgramTest.screen = Screen(**screen)
    try:
        unittest.main(argv=[sys.argv[0], *rest])
    finally:
        ProgramTest.screen.close()
