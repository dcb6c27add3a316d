# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""Clips whose frames carry their number, and the reading of these numbers from the screen.

The number stands in the top left corner, in squares that are white for 1 and black for 0, behind a white and a black
one: it can be read whatever program draws the clip, and however.
"""
import os
import subprocess
import tempfile

RATE = 25
EDGE = 32
BITS = 10
WIDTH = EDGE * (BITS + 2)
GRABS = 200  # a second
ROWS = 2  # of pixels, of each grab

GROUNDS = {"opaque": "navy", "green": "0x00ff00", "alpha": "black@0"}
H264 = ["-c:v", "libx264", "-preset", "veryfast", "-pix_fmt", "yuv420p"]
VP9 = ["-c:v", "libvpx-vp9", "-pix_fmt", "yuva420p", "-deadline", "realtime", "-cpu-used", "8", "-b:v", "4M"]


def squares(number):
    bits = [1, 0] + [number >> place & 1 for place in range(BITS)]
    return b"".join(bytes([235 if bit else 16]) * EDGE for bit in bits) * EDGE


def make(kind, size, seconds, path):
    """Writes a clip of `size` (such as 1280x720): a test picture a quarter as large moves over a navy ground, a green
    one or a transparent one. H.264; VP9 with alpha for the transparent one."""
    width, height = map(int, size.split("x"))
    graph = (f"color={GROUNDS[kind]}:s={size}:r={RATE},format=yuva420p[ground];"
             f"testsrc2=s={width // 2}x{height // 2}:r={RATE}[picture];"
             "[ground][picture]overlay=x='W/4+W/4*sin(t)':y='H/4+H/8*cos(t*1.3)'[scene];[scene][0]overlay")
    subprocess.run(["ffmpeg", "-v", "error", "-f", "rawvideo", "-pix_fmt", "gray", "-s", f"{WIDTH}x{EDGE}",
                    "-r", str(RATE), "-i", "-", "-filter_complex", graph, "-frames:v", str(seconds * RATE),
                    *(VP9 if kind == "alpha" else H264), str(path)],
                   input=b"".join(map(squares, range(seconds * RATE))), check=True)


class Watch:
    """Grabs the numbers on the screen in $DISPLAY for so many seconds from now on."""

    def __init__(self, seconds):
        self.pixels = tempfile.TemporaryFile()
        self.grabber = subprocess.Popen(
            ["ffmpeg", "-v", "error", "-nostdin", "-probesize", "32", "-f", "x11grab", "-draw_mouse", "0",
             "-framerate", str(GRABS), "-video_size", f"{WIDTH}x{ROWS}",
             "-i", os.environ["DISPLAY"] + f"+0,{EDGE // 2}", "-t", str(seconds), "-fps_mode", "passthrough",
             "-pix_fmt", "gray", "-f", "rawvideo", "-"], stdout=self.pixels)

    def numbers(self):
        """The numbers that could be seen, each once."""
        self.grabber.wait()
        with self.pixels as file:
            file.seek(0)
            grabs = iter(lambda: file.read(WIDTH * ROWS), b"")
            return {number(grab) for grab in grabs} - {None}


def number(row):
    """The number in a row of pixels; None when there is none."""
    first, second, *bits = (row[EDGE // 2 + EDGE * place] > 128 for place in range(BITS + 2))
    return sum(bit << place for place, bit in enumerate(bits)) if first and not second else None
