// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Nuvex.GUI 1.0 as BGUI
import Nuvex.Native 1.1

/// The projects of the workspace, by name. The arrow keys move, Enter chooses, Del deletes.
FocusScope {
    id: root

    readonly property int count: rows.count
    readonly property real rowHeight: Math.max(8 * BGUI.Theme.unit, Math.min(height / 9, 12 * BGUI.Theme.unit))
    readonly property real line: Math.max(1, dp)

    // Whether projects can be published to the cloud now.
    property bool canPublish: false

    signal chosen(string name)
    signal publishRequested(string name)
    signal removeRequested(string name)
    /// The project's still is another one.
    signal stillMade(string project)

    // Shows the workspace as it is now; the current row stays the current one as far as it is there.
    function reload() {
        const current = list.currentIndex;
        const hadFocus = list.activeFocus;
        rows.clear();
        CAPI.getProjectList().sort((a, b) => a.localeCompare(b)).forEach(name => rows.append({"name": name}));
        list.currentIndex = Math.max(0, Math.min(current, rows.count - 1));
        if (hadFocus)
            list.forceActiveFocus(Qt.TabFocusReason);
    }

    function select(name) {
        for (let i = 0; i < rows.count; ++i) {
            if (rows.get(i).name === name)
                list.currentIndex = i;
        }
    }

    Rectangle {
        width: parent.width
        height: Math.min(list.contentHeight + 2 * root.line, parent.height)
        visible: list.count > 0
        color: BGUI.Theme.surface
        border.width: root.line
        border.color: BGUI.Theme.line
    }

    ListView {
        id: list
        anchors.fill: parent
        anchors.margins: root.line
        focus: true
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        keyNavigationEnabled: true
        model: ListModel { id: rows }
        T.ScrollBar.vertical: BGUI.ScrollBar {}

        delegate: BGUI.ListRow {
            id: row

            readonly property bool isOpen: name === CAPI.getSSetting("lastProject")
            // Only the current row and its buttons are stops for the Tab key.
            readonly property bool isCurrent: ListView.isCurrentItem

            width: list.width
            height: root.rowHeight
            focus: true
            focusPolicy: isCurrent || activeFocus ? Qt.StrongFocus : Qt.ClickFocus
            highlighted: isOpen
            faIcon: isOpen ? "fa-folder-open" : "fa-folder"
            size: "large"
            text: name
            picture: still.source
            pictureWidth: 16 / 9 * contentItem.height
            onClicked: root.chosen(name)
            Keys.onDeletePressed: root.removeRequested(name)

            ProjectStill {
                id: still
                project: name
            }

            Connections {
                target: root

                function onStillMade(project) {
                    if (project === row.text)
                        still.project = project;
                }
            }

            BGUI.ActionButton {
                visible: root.canPublish
                focusPolicy: row.isCurrent || activeFocus ? Qt.StrongFocus : Qt.ClickFocus
                faIcon: "fa-cloud-upload"
                toolTip: qsTr("Publish %1").arg(row.text)
                onClicked: root.publishRequested(row.text)
            }

            BGUI.ActionButton {
                focusPolicy: row.isCurrent || activeFocus ? Qt.StrongFocus : Qt.ClickFocus
                faIcon: "fa-times"
                toolTip: qsTr("Delete %1").arg(row.text)
                onClicked: root.removeRequested(row.text)
            }
        }
    }

    Component.onCompleted: reload()
}
