// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Files that panels bring into the project. Not a shared library: it needs the importing document's CAPI.
.import Nuvex.Editor 1.0 as Editor

const folder = "images";

/// Endings of the files that can be chosen, by kind.
const filters = {
    picture: ["*.png", "*.jpg", "*.jpeg", "*.gif", "*.webp", "*.svg", "*.bmp"],
    video: ["*.mp4", "*.webm", "*.mov", "*.mkv", "*.avi", "*.ogv", "*.m4v"],
    feed: ["*.xml", "*.rss", "*.atom", "*.json"]
};

/// Path in the project that a copy of the file at `url` gets.
function targetOf(url) {
    return folder + "/" + decodeURIComponent(String(url).replace(/^.*\//, ""));
}

/// Whether copying the file at `url` would replace another file of the project.
function wouldReplace(url) {
    const target = targetOf(url);
    const own = "file://" + CAPI.getBaseFolder() + "/" + target;
    return CAPI.fileExist(target) && decodeURIComponent(String(url)) !== own;
}

/// Address of the file `path` of the project.
function urlOf(path) {
    return "file://" + (CAPI.getBaseFolder() + "/" + path).split("/").map(encodeURIComponent).join("/");
}

/// Copies the file at `url` into the project and lists it; its path there, "" when that failed.
function bringIn(url) {
    const path = CAPI.copyFileToDir(String(url), folder);
    if (path !== "")
        Editor.Ejs.addFileToDirmap(path);
    return path;
}

/// Takes the file `path` off the directory map when no document of the project names it any more. The file itself
/// stays: undo may need it.
function letGo(path) {
    if (path && path.startsWith(folder + "/") && Editor.Ejs.dirmap && Editor.Ejs.dirmap[path] !== undefined
            && !_isUsed(path))
        Editor.Ejs.removeFileFromDirmap(path);
}

// Besides the document being edited as it is now, the saved documents count: they are what players get.
function _isUsed(path) {
    const saved = CAPI.getQMLFileList().filter(name => name !== "main2.qml" && name !== CAPI.editorVersion());
    return CAPI.editedSourceCode().indexOf(path) >= 0 || saved.some(name => CAPI.readTextFile(name).indexOf(path) >= 0);
}

/// Where the search for a file begins: the user's pictures.
function startFolder() {
    return "file://" + (typeof picturesPath === "string" && picturesPath !== "" ? picturesPath : CAPI.getBaseFolder());
}
