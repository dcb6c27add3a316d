# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""A program with a Qt Quick scene, watched from outside: its frames, processor time and memory."""
import argparse
import os
import pathlib
import re
import subprocess
import threading
import time

CLOCK_TICKS = os.sysconf("SC_CLK_TCK")
# The loop's first pass, of 0 ms, draws nothing: the window is not mapped yet.
FRAME = re.compile(r"rame rendered.* in ([1-9]\d*)ms")


def read_options(*words, **defaults):
    """The command line: the program "nuvex" and further `words`, with an option of that default for each keyword."""
    parser = argparse.ArgumentParser()
    for word in ("nuvex", *words):
        parser.add_argument(word)
    for name, default in defaults.items():
        parser.add_argument("--" + name, type=type(default), default=default)
    return parser.parse_args()


class Player:
    """Runs a command; collects the render times of its frames (ms) from the scene graph's own log."""

    def __init__(self, command):
        environment = dict(os.environ, QT_LOGGING_RULES="qt.scenegraph.time.renderloop=true")
        self.started = time.monotonic()
        self.first_frame = None
        self.frames = []
        self.messages = []
        self.process = subprocess.Popen(command, stderr=subprocess.PIPE, stdout=subprocess.DEVNULL, text=True,
                                        errors="replace", env=environment)
        self.reader = threading.Thread(target=self._read, daemon=True)
        self.reader.start()

    def _read(self):
        for line in self.process.stderr:
            frame = FRAME.search(line)
            if frame:
                self.first_frame = self.first_frame or time.monotonic() - self.started
                self.frames.append(int(frame.group(1)))
            elif "renderloop" not in line:
                self.messages.append(line.rstrip())

    def wait_for_first_frame(self, seconds=60):
        deadline = time.monotonic() + seconds
        while self.first_frame is None:
            if time.monotonic() > deadline or self.process.poll() is not None:
                raise RuntimeError("no frame was drawn: " + "\n".join(self.messages[-5:]))
            time.sleep(0.002)
        return self.first_frame

    def cpu_seconds(self):
        fields = pathlib.Path(f"/proc/{self.process.pid}/stat").read_text().rsplit(")", 1)[1].split()
        return (int(fields[11]) + int(fields[12])) / CLOCK_TICKS

    def memory_mib(self):
        """Memory of its own, without what it shares with the files and programs around it."""
        lines = pathlib.Path(f"/proc/{self.process.pid}/smaps_rollup").read_text().splitlines()
        return next(int(line.split()[1]) for line in lines if line.startswith("Anonymous:")) / 1024

    def cpu_percent(self, seconds):
        """Percent of one core used during the next `seconds`."""
        before, begun = self.cpu_seconds(), time.monotonic()
        time.sleep(seconds)
        return 100 * (self.cpu_seconds() - before) / (time.monotonic() - begun)

    def stop(self):
        self.process.terminate()
        self.process.wait()
        self.reader.join()
