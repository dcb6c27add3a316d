// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor.panel 1.0
import "generalrows.js" as GeneralRows

/// The panel of an item whose component brings none: a row, by its kind, for what most items have and for what the
/// item's source sets.
Item {
    id: root

    property var desk
    property bool radEditor: !desk.forTouch

    PanelForm {
        id: form
        anchors.fill: parent
        panel: root
        assign: (name, text) => root.desk.live.assign(form.item, name, text)
        // The rows stay the same while values change.
        onRecordChanged: kinds.model = GeneralRows.rows(item, record, root.desk.selection.isRoot)

        Repeater {
            id: kinds

            Loader {
                readonly property Item form: parent.form
                readonly property real spacing: parent.spacing

                width: parent.width
                Component.onCompleted: setSource(Qt.resolvedUrl("../panel/" + modelData.row + ".qml"),
                                                 modelData.properties)
            }
        }
    }
}
