// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "limits.js" as Limits

/// Where the document shows on the canvas. It is moved and scaled from its top left corner, and a document that comes
/// in another's place takes over where that was.
Item {
    id: root

    property Item document: null
    readonly property real zoom: document ? document.scale : 1
    /// Whether the whole document is kept in view.
    property bool isFitted: false
    property var view: ({ x: 0, y: 0, scale: 1 })
    readonly property size screenSize: typeof asw === "number" ? Qt.size(asw, ash) : Qt.size(width, height)

    // Scales by so many notches of a wheel, and keeps what is at (x, y) there.
    function zoomBy(notches, x, y) {
        zoomTo(document.scale + document.scale * notches / 10, x, y);
    }

    function zoomTo(scale, x, y) {
        const wanted = Math.max(Limits.smallestScale, Math.min(Limits.largestScale, scale));
        const change = wanted / document.scale;
        isFitted = false;
        show(x - (x - document.x) * change, y - (y - document.y) * change, wanted);
    }

    function pan(dx, dy) {
        isFitted = false;
        show(document.x + dx, document.y + dy, document.scale);
    }

    // Shows the whole document in the middle.
    function fit() {
        isFitted = true;
        if (!document || !(document.width > 0 && document.height > 0 && width > 0 && height > 0))
            return;
        const margin = Math.min(Limits.fitMargin * (typeof dp === "number" ? dp : 1), width / 8, height / 8);
        const scale = Math.min((width - 2 * margin) / document.width, (height - 2 * margin) / document.height);
        const wanted = Math.max(Limits.smallestScale, Math.min(Limits.largestScale, scale));
        show((width - document.width * wanted) / 2, (height - document.height * wanted) / 2, wanted);
    }

    function show(x, y, scale) {
        view = { x: Math.round(x), y: Math.round(y), scale: scale };
        apply();
    }

    function apply() {
        document.x = view.x;
        document.y = view.y;
        document.scale = view.scale;
    }

    // A document without a size of its own takes the screen's, as on the wall.
    function giveSize() {
        if (!(document.width > 0))
            document.width = Qt.binding(() => screenSize.width);
        if (!(document.height > 0))
            document.height = Qt.binding(() => screenSize.height);
    }

    function keepFitted() {
        if (isFitted)
            fit();
    }

    onDocumentChanged: {
        if (!document)
            return;
        document.parent = sheet.parent;
        document.transformOrigin = Item.TopLeft;
        giveSize();
        if (isFitted)
            fit();
        else
            apply();
    }
    onWidthChanged: keepFitted()
    onHeightChanged: keepFitted()

    // What is seen where a document is transparent: on the wall it is black.
    Rectangle {
        id: sheet
        x: root.document ? root.document.x : 0
        y: root.document ? root.document.y : 0
        width: root.document ? root.document.width * root.zoom : 0
        height: root.document ? root.document.height * root.zoom : 0
        visible: root.document !== null
        color: "black"
    }
}
