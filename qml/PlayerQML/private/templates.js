// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// What a new project can begin with: the demos, as far as they are on this computer. Not a shared library: it needs the
// importing document's CAPI.
.import "demos.js" as Demos

/// Names of the templates, sorted; empty where the demos are not found.
function names() {
    return Demos.names.filter(name => _folderOf(name) !== "");
}

/// A small picture of the template.
function pictureOf(name) {
    return "qrc:///Nuvex/PlayerQML/private/templates/" + encodeURIComponent(name) + ".jpg";
}

/// Width and height of its page in px; null when its document does not say.
function sizeOf(name) {
    const found = /^ {4}width: (\d+)\n {4}height: (\d+)$/m.exec(CAPI.readTextFile(_folderOf(name) + "/main.qml"));
    return found ? { width: Number(found[1]), height: Number(found[2]) } : null;
}

/// Copies its files into the current project and lists them. False when one could not be copied.
function copy(name) {
    const folder = _folderOf(name);
    const paths = CAPI.readTextFile(folder + "/dirmap").split("\n").map(line => line.replace(/ \d+$/, ""))
                      .filter(path => path !== "");
    const dirmap = {};
    paths.forEach(path => dirmap[path] = 1);
    return dirmap["main.qml"] === 1 && paths.every(path => CAPI.copyFile(folder + "/" + path, path))
        && CAPI.updateDirmapFile(dirmap);
}

function _folderOf(name) {
    return Demos.places.map(place => place + "/" + name).find(folder => CAPI.fileExist(folder + "/main.qml")) || "";
}
