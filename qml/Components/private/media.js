// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Media addresses and sizes. Not a shared library: it needs the importing document's CAPI.
.import "limits.js" as Limits

/// The address to load for `source`, a url or text as written in a project: a relative path is the project's own file,
/// else one of the component library; anything else stays as it is. "" for nothing.
function address(source) {
    var text = source ? String(source) : "";
    // A relative path that an item dropped by the editor was given has been resolved against the library.
    var path = text.replace(/^qrc:\/*Nuvex\/Components\/(?!icons\/)/, "");
    if (path === "" || /^[a-zA-Z][a-zA-Z0-9+.-]+:/.test(path))
        return path;
    var found = CAPI.resolveUrl(path);
    return found === path ? text : found;
}

/// Size to decode the picture `source` at, for an item of width x height: photos at their own size up to the limit,
/// vector drawings at the item's size.
function decodedSize(source, width, height) {
    var edge = Limits.pictureEdge;
    if (!/\.svgz?$/i.test(String(source)))
        return Qt.size(edge, edge);
    return width > 0 && height > 0 ? Qt.size(Math.min(width, edge), Math.min(height, edge)) : undefined;
}
