#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""Takes one picture a page, demo and size of the real program for docs/screenshots.

Further arguments name what is taken: pages, editor, device, dashboard, gallery, or demos by their folders; without any
it is all.
"""
import os
import shutil
import subprocess
import sys
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path[1:1] = [str(ROOT / "tests" / folder) for folder in ("lan", "localcloud")]
# pylint: disable=wrong-import-position
import dashboardshots
from cloud import Cloud
from driver import Profile, Program, Screen, read_setup
from editorshots import EditorShots, take_device

PICTURES = ROOT / "docs/screenshots"
SIZES = ["1280x720", "1920x1080", "1080x1920"]
SETTLE = 1.0  # seconds for movements to end


def take(program, name, suffix="png", wait=SETTLE):
    time.sleep(wait)
    size = subprocess.run(["xdotool", "getdisplaygeometry"], env={**os.environ, "DISPLAY": program.screen.name},
                          capture_output=True, text=True, check=True).stdout.split()
    target = PICTURES / f"{name}-{'x'.join(size)}.{suffix}"
    options = ["-quality", "86"] if suffix == "jpg" else ["-depth", "8", "-colors", "256"]
    subprocess.run(["import", "-display", program.screen.name, "-window", "root", *options, str(target)], check=True)
    print(target.relative_to(ROOT), flush=True)


def steps_of_a_first_start(program):
    program.wait_page("LoginPage")
    take(program, "login")
    program.key("Escape")
    program.wait_page("MainPage")
    take(program, "main-without-project")


def steps_of_the_pages(program):
    take(program, "main")
    for keys, page, name in [("ctrl+e", "ZipGeneratorPage", "zip"), ("F1", "HelpPage", "help")]:
        program.key(keys)
        program.wait_page(page)
        take(program, name)
        program.key("Escape")
        program.wait_page("MainPage")
    for label, page, name in [("Open", "ProjectsPage", "projects"), ("Edit", "RADEditorPage", "editor")]:
        program.click(label)
        program.wait_page(page)
        take(program, name)
        program.key("Escape")
        program.wait_page("MainPage")
    for label, page, name in [("Settings", "SettingsPage", "settings"),
                              ("Advanced Editor", "AdvancedEditPage", "advanced-editor"),
                              ("About", "AboutPage", "about")]:
        program.click("Menu")
        program.click(label)
        program.wait_page(page)
        take(program, name)
        if page == "AdvancedEditPage":
            program.click("main.qml")
            program.wait_page("TextEditor")
            take(program, "text-editor")
            program.key("Escape")
            program.wait_page(page)
        program.key("Escape")
        program.wait_page("MainPage")


def steps_of_the_editor(program):
    EditorShots(program, lambda name: take(program, name, "jpg", 0.5)).all()


def steps_of_the_device(program, cloud):
    program.wait_page("MainPage")
    cloud.database("PUT", "/Users/ada@exampleorg/Players/window-3_1764000000000/command",
                   "CAPI.createEditorFile(); open('EditorPage')")
    program.wait_page("EditorPage")
    take_device(program, lambda name: take(program, name, "jpg"))


def run_device(setup, screen, settings):
    """The editor for touch, which a command from the cloud opens on any computer."""
    cloud = Cloud(setup.localcloud)
    try:
        run(setup, screen, lambda program: steps_of_the_device(program, cloud), settings,
            "--deployment", str(cloud.folder / "deployment.json"))
    finally:
        cloud.stop()


def steps_of_the_gallery(program):
    take(program, "gallery")
    for chapter in ["Pictures", "Texts", "Time and news", "Menus", "Shows", "Layouts", "Effects"]:
        program.click(chapter)
        take(program, "gallery-" + chapter.lower().replace(" ", "-"), "jpg", 8)


def run(setup, screen, steps, settings, *arguments):
    profile = Profile()
    try:
        if settings is not None:
            profile.write_settings(**settings)
        for demo in sorted((ROOT / "demos").glob("*/main.qml")):
            shutil.copytree(demo.parent, profile.work / demo.parent.name)
        program = Program(setup, screen, profile, *arguments)
        try:
            steps(program)
        finally:
            program.close()
    finally:
        profile.remove()


def main():
    setup, wanted = read_setup()
    PICTURES.mkdir(exist_ok=True)
    signed_in = {"userEmail": "ada@example.org", "playerUID": "window-3_1764000000000", "shareFolder": "false",
                 "doOnStart": "", "lastProject": "Shop Promotion"}
    # Boards that go by the clock are taken at nine in the morning.
    os.environ["TZ"] = f"DAY{time.gmtime().tm_hour - 9}"
    demos = [demo.parent for demo in sorted((ROOT / "demos").glob("*/main.qml"))]
    wanted = wanted or ["pages", "editor", "device", "dashboard", "gallery", *[demo.name for demo in demos]]
    for size in SIZES:
        screen = Screen(size)
        try:
            if "pages" in wanted:
                run(setup, screen, steps_of_a_first_start, None)
                run(setup, screen, steps_of_the_pages, signed_in)
                run(setup, screen, lambda program: take(program, "standby"), signed_in, "--play", "Nothing Here Yet")
            if "editor" in wanted:
                run(setup, screen, steps_of_the_editor, {**signed_in, "lastProject": "Menu Board"})
            if "device" in wanted:
                run_device(setup, screen, {**signed_in, "lastProject": "Menu Board"})
            if "dashboard" in wanted:
                dashboardshots.take_all(setup.localcloud, lambda *how: run(setup, screen, *how), take, signed_in)
            if "gallery" in wanted:
                run(setup, screen, steps_of_the_gallery, signed_in, "--gallery")
            for demo in demos:
                if demo.name in wanted:
                    name = demo.name.lower().replace(" ", "-")
                    run(setup, screen, lambda program: take(program, name, "jpg", 4), signed_in, "--play", demo)
        finally:
            screen.close()


if __name__ == "__main__":
    main()
