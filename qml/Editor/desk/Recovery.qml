// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Qt.labs.folderlistmodel 2.15
import Nuvex.Native 1.1

/// What the editor kept of changes that were not saved, when the program has ended without their being saved or given
/// up: a file beside the document, into which CAPI.saveEditingState() writes now and then as well.
QtObject {
    id: root

    readonly property string fileName: "main.savestatus"

    /// There is such a source, other and newer than what was saved last. `when` it was kept; invalid when that is
    /// unknown.
    signal found(string source, date when)

    // Tells by found() whether there is something besides `saved`, the document as it is on disk.
    function look(saved) {
        const kept = CAPI.readTextFile(fileName);
        if (kept === "" || kept === saved)
            return;
        // The model does not find folders of such names.
        if (/[#%?]/.test(CAPI.getBaseFolder()))
            Qt.callLater(found, kept, new Date(NaN));
        else
            times.createObject(root, { kept: kept });
    }

    // Keeps `source`, which is not saved, on disk soon.
    function keep(source) {
        copy.keep(source);
    }

    // Brings what is not on disk yet there, now: the program ends.
    function flush() {
        copy.flush();
    }

    // Nothing is to be recovered any more.
    function forget() {
        copy.remove();
    }

    function compare(files, kept) {
        const dates = {};
        for (let i = 0; i < files.count; ++i)
            dates[files.get(i, "fileName")] = files.get(i, "fileModified");
        const when = dates[fileName];
        if (when && !(dates["main.qml"] > when))
            found(kept, when);
    }

    readonly property SafetyCopy copy: SafetyCopy { path: root.fileName }

    readonly property Component times: Component {
        FolderListModel {
            property string kept

            folder: "file://" + encodeURI(CAPI.getBaseFolder())
            nameFilters: [root.fileName, "main.qml"]
            showDirs: false
            onStatusChanged: {
                if (status !== FolderListModel.Ready)
                    return;
                root.compare(this, kept);
                destroy();
            }
        }
    }
}
