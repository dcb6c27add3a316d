// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQml 2.15
import "front.js" as Front

/// Draws what stands before the pictures of a slide paler, each item by its own opacity, which the document may have
/// set or bound: at full shade it is as it was.
Instantiator {
    id: root

    property Item slide
    /// Opacity of the items, 0 to 1.
    property real shade: 1

    // The bindings let go of their items before they are destroyed.
    function follow() {
        if (shade < 1 && model.length === 0)
            model = Front.itemsOf(slide, slide);
        else if (shade >= 1)
            Qt.callLater(release);
    }

    function release() {
        if (shade >= 1)
            model = [];
    }

    model: []
    onShadeChanged: follow()

    delegate: Binding {
        id: paler
        property real own: 1

        target: modelData
        property: "opacity"
        value: own * Math.min(1, root.shade)
        when: false
        restoreMode: Binding.RestoreBindingOrValue
        Component.onCompleted: {
            own = modelData.opacity;
            when = Qt.binding(() => root.shade < 1);
        }
    }
}
