// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Media addresses and sizes. Not a shared library: it needs the importing document's CAPI.
.import "../limits.js" as Limits

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

// Image.PreserveAspectFit and Image.PreserveAspectCrop, which scripts cannot see.
const fit = 1;
const crop = 2;

/// Size to decode the picture `source` at: `wanted` if that says something; vector drawings large enough for an item
/// of width x height, in steps, so that a small change does not load them again; photos at their own size up to the
/// limit.
function decodedSize(source, wanted, width, height) {
    const edge = Limits.pictureEdge;
    if (wanted.width > 0 || wanted.height > 0)
        return Qt.size(Math.min(wanted.width, edge), Math.min(wanted.height, edge));
    if (!/\.svgz?$/i.test(String(source)))
        return Qt.size(edge, edge);
    const longest = Math.max(64, width, height);
    const step = Math.min(edge, Math.pow(2, Math.ceil(Math.log(longest) / Math.LN2)));
    return Qt.size(step, step);
}

/// Where a picture of `pictureWidth` x `pictureHeight` stands in an item of width x height, for one of Image's fill
/// modes.
function placeOf(fillMode, pictureWidth, pictureHeight, width, height) {
    if (!(fillMode === fit || fillMode === crop) || !(pictureWidth > 0) || !(pictureHeight > 0))
        return Qt.rect(0, 0, width, height);
    const byWidth = width / pictureWidth;
    const byHeight = height / pictureHeight;
    const scale = fillMode === fit ? Math.min(byWidth, byHeight) : Math.max(byWidth, byHeight);
    const w = pictureWidth * scale;
    const h = pictureHeight * scale;
    return Qt.rect(Math.round((width - w) / 2), Math.round((height - h) / 2), w, h);
}
