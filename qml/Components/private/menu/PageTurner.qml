// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// Turns the pages of a list that is longer than its place: on by one page, and from the end back to the beginning.
/// The first line that was cut off becomes the first of the next page.
Timer {
    id: root

    /// The ListView.
    property ListView view

    /// How long a page stands still, in milliseconds.
    property int pageTime: 8000

    readonly property real top: view.originY - view.topMargin
    readonly property real end: view.originY + view.contentHeight + view.bottomMargin - view.height
    readonly property real covered: view.headerItem ? view.headerItem.height : 0

    function turn() {
        if (root.end <= root.top)
            return;
        glide.to = root.view.contentY >= root.end - 1 ? root.top : nextPage();
        glide.restart();
    }

    // Where the line that is cut at the lower edge, if not the only one, comes to stand at the top.
    function nextPage() {
        const x = root.view.width / 2;
        const bottom = root.view.contentY + root.view.height;
        const cut = root.view.itemAt(x, bottom - 1) || root.view.itemAt(x, bottom - root.view.spacing - 1);
        const next = cut ? cut.y - root.covered : bottom;
        return next > root.view.contentY + 1 ? next : bottom;
    }

    interval: Math.max(500, root.pageTime) + glide.duration
    repeat: true
    onTriggered: turn()

    property NumberAnimation glide: NumberAnimation {
        target: root.view
        property: "contentY"
        duration: 1200
        easing.type: Easing.InOutCubic
    }
}
