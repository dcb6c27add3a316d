// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor 1.0
import "limits.js" as Limits
import "parts.js" as Parts
import "../panel/files.js" as Files
import "../panel/values.js" as Values

/// Brings pictures and videos into the project that are dropped onto the canvas.
QtObject {
    id: root

    property var desk

    // Brings the files at `urls`: onto an item of their kind as its source, else as items of their own at the point of
    // the frame. `aspectOf` tells width by height of a picture.
    function take(urls, point, aspectOf) {
        const known = urls.filter(url => Parts.mediaOf(url, Files.filters) !== null);
        if (known.length === 0)
            desk.tell(qsTr("Only pictures and videos can be put on the page."), "info", Limits.message);
        known.forEach((url, i) => {
            const path = bringIn(url);
            if (path === "")
                desk.say(qsTr("The file could not be copied into the project."));
            else
                show(url, path, Qt.point(point.x + 24 * i, point.y + 24 * i), aspectOf);
        });
    }

    function show(url, path, point, aspectOf) {
        const kind = Parts.mediaOf(url, Files.filters);
        const target = desk.selection.at(point);
        if (target && Parts.showsMedia(Ejs.map[target.element].typename, kind)) {
            desk.selection.set([target]);
            desk.changes.property("source", Values.quoted(path));
            return;
        }
        const parent = desk.insertion.parentAt(point);
        const at = parent.mapFromItem(desk.frame, point.x, point.y);
        const width = Math.max(1, Math.round(parent.width / 3));
        const height = Math.max(1, Math.round(width / (kind === "picture" ? aspectOf(url) : 16 / 9)));
        desk.insertion.add(kind === "picture" ? "BasicImage" : "BasicVideo", parent, at.x - width / 2,
                           at.y - height / 2,
                           { width: String(width), height: String(height), source: Values.quoted(path) });
    }

    // Copies a file into the project, under another name where that would replace another file.
    function bringIn(url) {
        if (!Files.wouldReplace(url))
            return Files.bringIn(url);
        const [stem, ending] = /^(.*?)(\.[^.]*)?$/.exec(Files.targetOf(url)).slice(1);
        let number = 2;
        while (CAPI.fileExist(stem + "-" + number + ending))
            ++number;
        const path = stem + "-" + number + ending;
        if (!CAPI.copyFile(String(url), path))
            return "";
        Ejs.addFileToDirmap(path);
        return path;
    }
}
