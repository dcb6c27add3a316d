// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Nuvex.GUI 1.0 as BGUI
import "templates.js" as Templates

/// What a project begins with: an empty page, or a template by its picture. One stop for the Tab key; the arrow keys
/// move the choice.
FocusScope {
    id: root

    readonly property int columns: Math.max(1, Math.floor((width + gap) / (17 * BGUI.Theme.unit + gap)))
    readonly property real gap: 1.5 * BGUI.Theme.unit
    property int currentIndex: 0
    // Of the template; "" is the empty page.
    readonly property string current: tiles.model[currentIndex]

    signal chosen()

    function choose(index) {
        tiles.itemAt(index).forceActiveFocus(Qt.TabFocusReason);
        currentIndex = index;
        chosen();
    }

    function step(by) {
        const next = currentIndex + by;
        if (next >= 0 && next < tiles.count)
            choose(next);
    }

    implicitHeight: grid.height
    Accessible.role: Accessible.Grouping
    Keys.onLeftPressed: step(-1)
    Keys.onRightPressed: step(1)
    Keys.onUpPressed: step(-columns)
    Keys.onDownPressed: step(columns)

    Grid {
        id: grid
        columns: root.columns
        spacing: root.gap

        Repeater {
            id: tiles
            model: [""].concat(Templates.names())

            T.RadioButton {
                id: tile

                readonly property bool isEmpty: modelData === ""

                objectName: "template " + modelData
                implicitWidth: (root.width + root.gap) / root.columns - root.gap
                implicitHeight: Math.round(implicitWidth * 9 / 16) + bottomInset
                bottomInset: 3 * BGUI.Theme.unit
                activeFocusOnTab: index === root.currentIndex
                focus: activeFocusOnTab
                focusPolicy: Qt.StrongFocus
                text: isEmpty ? qsTr("Empty page") : modelData
                checked: index === root.currentIndex
                Accessible.name: text
                onClicked: root.choose(index)

                background: Rectangle {
                    id: picture
                    color: tile.isEmpty ? BGUI.Theme.surface : BGUI.Theme.sunken
                    border.width: tile.checked ? 3 * dp : Math.max(1, dp)
                    border.color: tile.visualFocus ? BGUI.Theme.focus
                                                   : tile.checked ? BGUI.Theme.accent : BGUI.Theme.line

                    Image {
                        anchors.fill: parent
                        anchors.margins: picture.border.width
                        asynchronous: true
                        source: tile.isEmpty ? "" : Templates.pictureOf(modelData)
                        fillMode: Image.PreserveAspectFit
                        mipmap: true
                    }
                }

                contentItem: BGUI.Label {
                    text: tile.text
                    size: "small"
                    strong: tile.checked
                    wrapMode: Text.NoWrap
                    elide: Text.ElideRight
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignBottom
                }
            }
        }
    }
}
