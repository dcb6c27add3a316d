// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor.panel 1.0
import "private/show"

/// The panel of Slideshow: how its slides turn.
Item {
    id: root

    property bool radEditor: false
    property string size: radEditor ? "base" : "large"

    implicitWidth: form.implicitWidth
    implicitHeight: form.implicitHeight

    PanelForm {
        id: form
        anchors.fill: parent
        panel: root

        ShowRows {}
        PlateSection {}
        PlaceSection {}
    }
}
