#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""Private memory while a Slideshow of thirty slides turns many thousand times, beside plain QML.

slideshow.py NUVEX [--turns N]

The slides hold words, pictures, live texts and a video; a turn is as short as it can be. The plain scene, in qmlscene,
makes the same slides of QtQuick's types and destroys them. Prints the growth a turn over the second half.
"""
import pathlib
import subprocess
import tempfile

import clips
from marks import print_growth, watch
from turns import HERE, QMLSCENE, nuvex_playing, read_options

WORDS = "BasicText { text: 'A slide of words' }"
PHOTO = "BasicImage { width: 640; height: 360; source: '%(picture)s'; cache: false }"
BOTH = PHOTO + " LiveText { width: 300; height: 60; text: 'A plate' }"
VIDEO = "BasicVideo { width: 640; height: 360; source: '%(clip)s' }"
SHOW = """import QtQuick 2.15
import Nuvex.Components 1.0
import "%(here)s"
Turns {
    name: "Slideshow"; total: %(turns)d
    Slideshow {
        width: 640; height: 360; running: false; transTime: 10
        """ + "\n        ".join(f"Slide {{ {item} }}" for item in [VIDEO] + ([PHOTO, BOTH, WORDS] * 10)[:29]) + """
    }
}
"""
PLAIN = """import QtQuick 2.15
import "%(here)s"
import "%(here)s/plain"
Turns { name: "plain"; total: %(turns)d; Slides { picture: "%(picture)s"; clip: "%(clip)s" } }
"""


def main():
    options = read_options(turns=10000)
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        clip, picture, plain = folder / "clip.mp4", folder / "picture.jpg", folder / "Plain.qml"
        clips.make("opaque", "640x360", 2, clip)
        subprocess.run(["ffmpeg", "-v", "error", "-i", str(clip), "-frames:v", "1", str(picture)], check=True)
        words = {"here": HERE.as_uri(), "turns": options.turns, "clip": clip.as_uri(), "picture": picture.as_uri()}
        plain.write_text(PLAIN % words)
        samples = {}
        for command in (nuvex_playing(options.nuvex, folder, SHOW % words), [QMLSCENE, str(plain)]):
            samples |= watch(command)[0]
    print_growth(samples)


if __name__ == "__main__":
    main()
