// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor 1.0
import "limits.js" as Limits
import "parts.js" as Parts
import "../panel/files.js" as Files
import "../panel/values.js" as Values

/// The project's pictures and videos on the page: those that it has, and those that are dropped from elsewhere.
QtObject {
    id: root

    property var desk

    /// Paths of the pictures and videos of the project, by name.
    function files() {
        return Object.keys(Ejs.dirmap || {}).filter(path => kindOf(path) !== null)
                     .sort((one, other) => one.toLowerCase() < other.toLowerCase() ? -1 : 1);
    }

    function kindOf(file) {
        return Parts.mediaOf(file, Files.filters);
    }

    // Brings the files at `urls` and shows them at a point of the frame.
    function take(urls, point) {
        bringAll(urls).forEach((path, i) => show(path, Qt.point(point.x + 24 * i, point.y + 24 * i)));
    }

    // Brings the pictures and videos at `urls` into the project; their paths there.
    function bringAll(urls) {
        const known = urls.filter(url => kindOf(url) !== null);
        if (known.length === 0)
            desk.tell(qsTr("Only pictures and videos can be put on the page."), "info", Limits.message);
        const paths = known.map(bringIn);
        if (paths.indexOf("") >= 0)
            desk.say(qsTr("The file could not be copied into the project."));
        return paths.filter(path => path !== "");
    }

    // Shows a file of the project at a point of the frame: in the item there if it shows such files, else in a new one.
    function show(path, point) {
        const shower = showerAt(path, point);
        if (shower)
            showIn(path, shower);
        else
            add(path, point);
    }

    // Shows a file of the project in the selected item, or in the middle of the canvas.
    function showChosen(path) {
        const item = desk.selection.item;
        if (propertyFor(path, item) !== "")
            showIn(path, item);
        else
            add(path, Qt.point(desk.frame.width / 2, desk.frame.height / 2));
    }

    /// The item on top at a point of the frame if it can show the file, by address or path; else null.
    function showerAt(file, point) {
        const top = kindOf(file) !== null ? desk.selection.at(point) : null;
        return propertyFor(file, top) !== "" ? top : null;
    }

    function propertyFor(file, item) {
        const record = item ? Ejs.map[item.element] : null;
        const kind = kindOf(file);
        return record && kind !== null ? Parts.mediaProperty(record.typename, kind) : "";
    }

    function showIn(path, item) {
        desk.selection.set([item]);
        desk.changes.property(propertyFor(path, item), Values.quoted(path));
    }

    function add(path, point) {
        const isPicture = kindOf(path) === "picture";
        const parent = desk.insertion.parentAt(point);
        const at = parent.mapFromItem(desk.frame, point.x, point.y);
        const width = Math.max(1, Math.round(parent.width / 3));
        const height = Math.max(1, Math.round(width / (isPicture ? aspectOf(path) : 16 / 9)));
        desk.insertion.add(isPicture ? "BasicImage" : "BasicVideo", parent, at.x - width / 2, at.y - height / 2,
                           { width: String(width), height: String(height), source: Values.quoted(path) });
    }

    // Width by height of a picture of the project; of one that cannot be read, as of most.
    function aspectOf(path) {
        picture.source = Files.urlOf(path);
        const aspect = picture.status === Image.Ready ? picture.implicitWidth / picture.implicitHeight : 3 / 2;
        picture.source = "";
        return aspect;
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

    readonly property Image picture: Image {
        cache: false
        sourceSize.width: 64
    }
}
