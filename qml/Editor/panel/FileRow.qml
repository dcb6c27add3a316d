// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "files.js" as Files
import "values.js" as Values

/// A file: a picture, video or other, that is copied into the project when it is chosen.
PanelRow {
    id: root

    /// Kind of the file, of files.js.
    property string kind: "picture"
    // What the source names; where it works that out, what the item shows.
    readonly property string path: form.revision > 0 ? pathNow() : ""

    function pathNow() {
        const written = Values.textIn(form.source(name));
        return written !== undefined ? written : value === undefined ? "" : String(value);
    }

    function put(path) {
        const old = root.path;
        form.commit(name, Values.quoted(path));
        if (old !== path)
            Files.letGo(old);
    }

    controlWidth: field.implicitWidth

    FileField {
        id: field
        width: parent.width
        size: root.size
        kind: root.kind
        // A feed has a row for its address as well: that is no file.
        path: root.kind === "feed" && /^https?:/.test(root.path) ? "" : root.path
        label: root.label
        onWanted: root.form.pickFile(root.kind, root.put)
        onCleared: root.put("")
    }
}
