#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""Plays a project for a long time and reports frame times, CPU and memory over the run, and black frames.

soak.py NUVEX PROJECT [--minutes M] [--grab SECONDS]

Runs on the display in $DISPLAY. For SECONDS at the beginning the screen is grabbed at 30 Hz with ffmpeg, and frames
of which 98 % is near black are counted. Prints a markdown table, one row an interval.
"""
import os
import pathlib
import re
import statistics
import subprocess
import sys
import tempfile
import time

from processes import Player, read_options

INTERVALS = 6


def near_black_frames(size, seconds):
    """(frames grabbed, near-black frames among them)"""
    result = subprocess.run(
        ["ffmpeg", "-nostdin", "-f", "x11grab", "-framerate", "30", "-video_size", size, "-i", os.environ["DISPLAY"],
         "-t", str(seconds), "-vf", "blackframe=amount=98:threshold=32", "-f", "null", "-"],
        stderr=subprocess.PIPE, text=True, check=True).stderr
    frames = int(re.findall(r"frame=\s*(\d+)", result)[-1])
    return frames, len(re.findall(r"blackframe.*pblack", result))


def percentile(values, share):
    return sorted(values)[int(share * (len(values) - 1))] if values else float("nan")


def main():
    options = read_options("project", minutes=30.0, grab=60.0, size=os.environ.get("NUVEX_SCREEN", "1280x720"))
    with tempfile.TemporaryDirectory() as profile:
        player = Player([options.nuvex, "--profile", profile, "--play", options.project])
        try:
            player.wait_for_first_frame()
            time.sleep(5)
            if options.grab:
                frames, black = near_black_frames(options.size, options.grab)
                print(f"{frames} frames grabbed at 30 Hz, {black} near black\n")
            print(f"{pathlib.Path(options.project).name} at {options.size}, {options.minutes:.0f} minutes\n")
            print("| minutes | frames | median, ms | 95 %, ms | CPU, % of a core | private memory, MiB |")
            print("|---|---|---|---|---|---|")
            for interval in range(INTERVALS):
                seen = len(player.frames)
                cpu = player.cpu_percent(options.minutes * 60 / INTERVALS)
                frames = player.frames[seen:]
                print(f"| {options.minutes * (interval + 1) / INTERVALS:.1f} | {len(frames)} "
                      f"| {statistics.median(frames or [0])} | {percentile(frames, 0.95)} | {cpu:.1f} "
                      f"| {player.memory_mib():.1f} |", flush=True)
        finally:
            player.stop()
        print("\n" + "\n".join(player.messages), file=sys.stderr)


if __name__ == "__main__":
    main()
