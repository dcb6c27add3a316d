// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Native 1.1
import "../SharedVars.js" as SS

/// A transfer with the cloud, one at a time: publishing a project, or getting one. Shows how far it has come, asks
/// where a file was changed on both sides, and tells in words how it ended.
FocusScope {
    id: root

    // What it is about, and its words while it is under way.
    property string project
    property string caption

    readonly property string user: CAPI.getSSetting("userEmail")
    readonly property bool running: transfers.running || isCounting
    // Files are published, and the revision that players follow is being counted up.
    property bool isCounting: false
    // Files that differ from those in the cloud, which were to stay there.
    property int kept: 0
    property var atEnd: () => {}

    // A type of Notice, and what there is to say.
    signal told(string type, string text)
    // The project, or the store's archive, has arrived.
    signal arrived(string project)
    signal published(string project, int revision)

    function begin(name, words, whenDone) {
        project = name;
        caption = words;
        atEnd = whenDone;
        kept = 0;
        told("info", "");
    }

    function publish(name) {
        begin(name, qsTr("Publishing %1"), endPublish);
        transfers.publish(name, localPath(still.source));
    }

    // `revision`: the published one; empty when none is known.
    function getProject(source, name, revision) {
        begin(name, qsTr("Getting %1"), () => {
            note(name, revision);
            arrived(name);
        });
        transfers.downloadProject(source);
    }

    function getArchive(source, name) {
        begin(name, qsTr("Getting %1"), () => {});
        transfers.downloadArchive(source);
    }

    function cancel() {
        transfers.cancel();
        timeOut.abort();
    }

    function localPath(url) {
        return decodeURIComponent(url.toString().replace("file://", "").replace(/\?.*$/, ""));
    }

    // This computer has that revision: it need not be fetched, and pages tell of it.
    function note(name, revision) {
        if (revision !== "")
            CAPI.doOneShareDown(name, revision);
    }

    function endPublish() {
        if (transfers.hasPublished() || kept === 0)
            countUp();
        else
            getKept();
    }

    // Nothing is new in the cloud; what was given up for it comes to this computer.
    function getKept() {
        transfers.endPublish(project);
        caption = qsTr("Getting %1");
        atEnd = () => told("info", qsTr("Nothing of %1 was published: it is now as in the cloud.").arg(project));
        transfers.downloadProject(user + "/ShareFolder/" + project);
    }

    // When it fails, the next start tells the players.
    function countUp() {
        isCounting = true;
        SS.updateRev(user, project, (success, result) => {
            isCounting = false;
            if (success)
                tellPublished(result.revision);
            else
                told("danger", qsTr("The files of %1 are in the cloud, but its players could not be told of them. "
                                    + "Publish it again.").arg(project));
        }, timeOut);
    }

    function tellPublished(revision) {
        transfers.endPublish(project);
        note(project, String(revision));
        const text = qsTr("%1 is published, as revision %2.").arg(project).arg(revision);
        told("success", kept === 0 ? text : text + " " + qsTr("Files kept as they are in the cloud: %1.").arg(kept));
        published(project, revision);
    }

    function end(error, cancelled) {
        if (cancelled)
            told("info", cancelText());
        else if (error !== "")
            told("danger", qsTr("%1 failed: %2.").arg(caption.arg(project)).arg(error));
        else
            atEnd();
    }

    function cancelText() {
        const text = qsTr("%1 was cancelled.").arg(caption.arg(project));
        return transfers.uploading && transfers.files > 0
            ? text + " " + qsTr("Some files are in the cloud; until they all are, it cannot be got from there.") : text;
    }

    function progressText() {
        if (!running)
            return "";
        const what = caption.arg(project);
        if (transfers.files === 0)
            return what;
        return qsTr("%1: %2, file %3 of %4").arg(what).arg(transfers.file).arg(transfers.fileNumber)
                                            .arg(transfers.files);
    }

    implicitHeight: strip.implicitHeight
    visible: running

    ProgressStrip {
        id: strip
        width: parent.width
        focus: true
        text: root.progressText()
        progress: transfers.progress
        onCanceled: root.cancel()
    }

    Transfers {
        id: transfers
        onConflictsFound: conflicts.ask(files)
        onKept: root.told("warning", qsTr("Changed here and not published, so left as they are: %1.")
                                     .arg(files.join(", ")))
        onFinished: root.end(error, cancelled)
    }

    ConflictBox {
        id: conflicts
        project: root.project
        onSettled: {
            root.kept = theirs.length;
            transfers.settle(theirs);
        }
        onRejected: transfers.cancel()
    }

    ProjectStill {
        id: still
        project: root.project
    }

    RequestTimer {
        id: timeOut
    }
}
