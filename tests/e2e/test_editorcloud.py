# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""Publishing from the desktop editor, to the cloud on this machine."""

import os
import signal
import subprocess
import sys
from pathlib import Path

from driver import run_tests, wait_for
from editordriver import DOCUMENT, EditorTest

sys.path.append(str(Path(__file__).resolve().parents[1] / "localcloud"))
from cloud import Cloud  # noqa: E402

PLACE = "NUVEX/users/ann@example.org/ShareFolder/Shop"


class PublishingTest(EditorTest):
    def setUp(self):
        super().setUp()
        self.cloud = Cloud(self.setup.localcloud)
        self.addCleanup(self.cloud.stop)

    def start(self, *arguments, **options):
        return super().start("--deployment", str(self.cloud.folder / "deployment.json"), *arguments, **options)

    def publish(self):
        self.program.click("Save and publish")

    def in_cloud(self):
        return self.cloud.get(PLACE + "/main.qml").body.decode()

    def picture_in_cloud(self):
        """The colour of what the picture shows at the right edge of "red"."""
        picture = self.cloud.get(PLACE + ".jpg").body
        self.assertIsInstance(picture, bytes)
        pixel = subprocess.run(["convert", "jpg:-", "-crop", "1x1+180+100", "-depth", "8", "rgb:-"], input=picture,
                               capture_output=True, check=True).stdout
        return tuple(round(value / 16) for value in pixel)

    def test_publishing(self):
        program = self.open()
        self.drag("red", by=(43, 21), held=["ctrl"])
        wait_for((self.profile.work.parent / "Stills/Shop.jpg").exists, "the still of the first change")
        self.publish()
        program.wait_text("Shop is published, as revision 0.")
        first = DOCUMENT.replace("x: 20\n        y: 30", "x: 63\n        y: 51")
        self.assertEqual((self.source(), self.in_cloud()), (first, first))
        self.assertEqual(self.picture_in_cloud(), (11, 2, 2))

        theirs = DOCUMENT.replace("#b22222", "#00aa00")
        self.cloud.put(PLACE + "/main.qml", theirs.encode())
        self.cloud.put(PLACE + "/dirmap", b"main.qml 9\n")
        self.drag("red", by=(10, 0), held=["ctrl"])
        self.publish()
        program.wait_text("Shop was changed in the cloud, too")
        program.click("Keep those in the cloud")
        program.wait_text("Nothing of Shop was published: it is now as in the cloud.")
        self.wait_colour("red", "#00aa00")  # what was kept has come, and is shown
        self.assertEqual(self.source(), theirs)
        program.key("ctrl+z")
        self.wait_colour("red", "#b22222")
        self.assertIn("x: 73", self.saved())

    def test_while_it_is_published(self):
        program = self.open()
        os.kill(self.cloud.process.pid, signal.SIGSTOP)  # it takes connections and says nothing
        self.drag("red", by=(43, 21), held=["ctrl"])
        self.publish()
        wait_for(lambda: program.find("Cancel"), "the progress")
        saved = self.source()
        self.assertIn("x: 63", saved)
        self.drag("red", by=(10, 0), held=["ctrl"])
        program.key("ctrl+s")
        program.wait_text("Not saved: Shop is being published.")
        program.click("Back")
        program.wait_text("leaving would end that")
        self.assertEqual((program.page(), self.source()), ("RADEditorPage", saved))
        program.click("Cancel")
        program.wait_text("Publishing Shop was cancelled.")
        os.kill(self.cloud.process.pid, signal.SIGCONT)
        self.assertIn("x: 73", self.saved())


if __name__ == "__main__":
    run_tests()
