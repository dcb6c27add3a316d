// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "fit.js" as Fit

/// Loads a project's document and keeps it as large as its parent allows: in its own shape, in the middle, and
/// turned by a quarter when it lies the other way.
Loader {
    id: root

    // Not everything that loads can be seen.
    readonly property bool isShown: item instanceof Item
    readonly property real pageWidth: parent.width
    readonly property real pageHeight: parent.height

    // A document without a size of its own takes the page's.
    function giveSize() {
        if (!(item.width > 0))
            item.width = Qt.binding(() => pageWidth);
        if (!(item.height > 0))
            item.height = Qt.binding(() => pageHeight);
    }

    function place() {
        const fitted = isShown ? Fit.fit(item.width, item.height, pageWidth, pageHeight) : null;
        if (!fitted)
            return;
        item.transform = fitted.turned ? [quarterTurn, lift] : [];
        item.transformOrigin = fitted.turned ? Item.TopRight : Item.TopLeft;
        item.scale = fitted.scale;
        item.x = fitted.x;
        item.y = fitted.y;
    }

    onPageWidthChanged: place()
    onPageHeightChanged: place()
    onWidthChanged: place()
    onHeightChanged: place()
    onLoaded: {
        if (!isShown) {
            console.warn(source + ": its root is no visual item");
            return;
        }
        giveSize();
        place();
    }

    Rotation {
        id: quarterTurn
        angle: -90
    }

    Translate {
        id: lift
        y: root.isShown ? root.item.width : 0
    }
}
