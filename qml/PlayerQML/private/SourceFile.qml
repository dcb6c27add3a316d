// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor 1.0
import Nuvex.Native 1.1

/// A source file of the project: read, judged, written. Its line ends stay what they are.
QtObject {
    id: root

    /// Below the project's folder.
    property string path
    readonly property bool isQml: /\.qml$/.test(path)
    /// Whether the next save puts UTF-8 in place of another encoding.
    property bool isOtherEncoding: false
    /// Whether there is a text to edit: one that could not be read must not be replaced.
    property bool isReadable: true
    /// Why the last save was refused, and the line to blame: from 1, 0 for none.
    property string problem
    property int faultLine: 0

    property bool hasWindowsLines: false

    /// The file's text as it is on the disk, lines ended by "\n".
    function read() {
        const text = CAPI.readTextFile(path);
        hasWindowsLines = text.indexOf("\r\n") >= 0;
        isReadable = encoding.isReadable;
        isOtherEncoding = isReadable && !encoding.isUtf8;
        return text.replace(/\r\n/g, "\n");
    }

    /// Writes `text`, and counts the file up for the players. False, and nothing is written, when it is empty, no
    /// document, or cannot be written; `problem` says why.
    function write(text) {
        judge(text);
        if (problem !== "")
            return false;
        if (!CAPI.writeToFile(hasWindowsLines ? text.replace(/\n/g, "\r\n") : text, path)) {
            problem = qsTr("Not saved: the file cannot be written. Is the disk full?");
            return false;
        }
        isOtherEncoding = false;
        countUp();
        return true;
    }

    function judge(text) {
        const fault = isQml && CAPI.parseAndGetMap(text).length === 0 ? faults.inSource(text)[0] : undefined;
        faultLine = text.trim() !== "" && fault ? fault.line : 0;
        if (text.trim() === "")
            problem = qsTr("Not saved: the text is empty.");
        else if (fault)
            problem = qsTr("Not saved: line %1: %2").arg(fault.line).arg(fault.message);
        else
            problem = "";
    }

    // The map is read anew: another page may have written it.
    function countUp() {
        Ejs.JCAPI = CAPI;
        Ejs.dirmap = CAPI.dirmap();
        Ejs.incFileInDirmap(path);
    }

    readonly property TextFile encoding: TextFile { path: root.path }
    readonly property DocumentFaults faults: DocumentFaults {}
}
