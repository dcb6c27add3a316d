// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Media addresses. Not a shared library: it needs the importing document's CAPI.

/// The address to load for `source`, a url or text as written in a project: a path is the project's own file, else one
/// of the component library; an url stays as it is. "" for nothing.
function address(source) {
    // A relative path that an item dropped by the editor was given has been resolved against the library.
    const path = source ? String(source).replace(/^qrc:\/*Nuvex\/Components\/(?!icons\/)/, "") : "";
    if (path === "" || /^[a-zA-Z][a-zA-Z0-9+.-]+:/.test(path))
        return path;
    const found = CAPI.resolveUrl(path);
    return found === path ? expectedAddress(path) : found;
}

// Where a file that is not there yet will be.
function expectedAddress(path) {
    const file = path.charAt(0) === "/" ? path : CAPI.getBaseFolder() + "/" + path;
    return "file://" + file.split("/").map(encodeURIComponent).join("/");
}

/// Size in pixels of a copy of a video's frame for `item`: the video's own, `resolution`, where it is known and smaller
/// than the item; else 0 x 0, which stands for the item's.
function copySize(resolution, item) {
    const isSmall = resolution !== undefined && resolution.width > 0 && resolution.height > 0
        && resolution.width * resolution.height < item.width * item.height;
    return isSmall ? resolution : Qt.size(0, 0);
}
