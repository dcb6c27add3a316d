#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""What is left of components that have been created and destroyed again, in one run of Nuvex.

creations.py NUVEX [--total N] [--only NAME ...]

Each component of the module, and plain Qt types in the same run, N times, fifty at a time; videos that play, five.
Prints the growth of private memory per creation, by least squares over the second half, and threads, open files and
wake-ups a second while nothing happens, before the first creation and after the last.
"""
import argparse
import pathlib
import tempfile

import clips
from marks import print_growth, watch
from turns import HERE, nuvex_playing

LIBRARY = HERE.parents[1] / "qml/Components"
IMPORTS = "; ".join(f"import {module}" for module in (
    "QtQuick 2.15", "QtQuick.Controls 2.15", "QtQuick.Layouts 1.15", "QtMultimedia 5.15", "QtQuick.Particles 2.15",
    "Nuvex.Components 1.0", "Nuvex.Native 1.0"))
DOCUMENT = """import QtQuick 2.15
import "%s"
Creations { imports: "%s"; kinds: [%s] }
"""
# No service is asked.
SILENT = "service: ''"
SETTINGS = {"Weather": SILENT, "WeatherForecast": SILENT, "Flickr": SILENT, "Twitter": SILENT, "Rss": "currentFeed: ''"}
PLAIN = {
    "item": "Item {}",
    "rectangle": "Rectangle { width: 240; height: 160 }",
    "text": "Text { text: 'Your text here'; font.pixelSize: 48 }",
    "image": "Image { source: 'qrc:/Nuvex/Components/icons/noImage.png' }",
    "layers": "Row { Repeater { model: 6; Rectangle { width: 99; height: 99; "
              "layer.enabled: true; layer.effect: ShaderEffect {} } } }",
    "video": "Video {}",
    "listview": "ListView { model: 5; delegate: Item {} }",
    "grid": "Grid { Repeater { model: 6; Rectangle {} } }",
    "columnlayout": "ColumnLayout { Repeater { model: 42; Text { text: index } } }",
    "pathview": "PathView { model: 5; delegate: Item {} path: Path { PathLine { x: 100 } } }",
    "particles": "ParticleSystem { ImageParticle {} Emitter {} }",
    "button": "Button { text: 'Button' }"
}
PLAYING = {"Video": "autoPlay: true", "BasicVideo": "", "ChromaVideo": "", "TransparentVideo": "autoPlay: true"}


def listed_components():
    lines = [line.split() for line in (LIBRARY / "qmldir").read_text().splitlines()]
    return [words[0] for words in lines if len(words) == 3 and not words[0].endswith("Editor")]


def kind(name, text, total, at_a_time):
    return f'{{ name: "{name}", text: "{text}", total: {total}, atATime: {at_a_time} }}'


def kinds(total, clip, only):
    """The plain types are named in lower case."""
    result = {name: kind(name, text, total, 50) for name, text in PLAIN.items()}
    result |= {name: kind(name, f"{name} {{ {SETTINGS.get(name, '')} }}", total, 50) for name in listed_components()}
    for name, text in PLAYING.items():
        title, place = "playing-" + name, f"width: 64; height: 36; source: '{clip.as_uri()}'"
        result[title] = kind(title, f"{name} {{ {place}; {text} }}", total, 5)
    return [text for name, text in result.items() if not only or name in only]


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("nuvex")
    parser.add_argument("--total", type=int, default=2000, help="at least 200")
    parser.add_argument("--only", nargs="*", default=[])
    options = parser.parse_args()
    with tempfile.TemporaryDirectory() as folder:
        clip = pathlib.Path(folder) / "clip.mp4"
        clips.make("opaque", "640x360", 2, clip)
        document = DOCUMENT % (HERE.as_uri(), IMPORTS, ", ".join(kinds(options.total, clip, options.only)))
        samples, states = watch(nuvex_playing(options.nuvex, folder, document))
    print_growth(samples)
    print(f"\nBefore: {states[1].since(states[0])}. After: {states[3].since(states[2])}.")


if __name__ == "__main__":
    main()
