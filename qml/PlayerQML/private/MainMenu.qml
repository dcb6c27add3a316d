// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// The main page's menu. Hidden until asked for; a press beside it closes it.
FocusScope {
    id: root

    signal chosen(string page)
    signal closed()

    function toggle() {
        if (visible)
            close();
        else
            show();
    }

    function show() {
        visible = true;
        settings.forceActiveFocus(Qt.TabFocusReason);
    }

    function close() {
        visible = false;
        closed();
    }

    // The keyboard stays in the menu: after the last entry comes the first.
    function step(by) {
        const reachable = Array.from(entries.children).filter(entry => entry.visible);
        const current = reachable.findIndex(entry => entry.activeFocus);
        reachable[(current + by + reachable.length) % reachable.length].forceActiveFocus(Qt.TabFocusReason);
    }

    function choose(page) {
        close();
        chosen(page);
    }

    visible: false

    Keys.onUpPressed: step(-1)
    Keys.onDownPressed: step(1)
    Keys.onBacktabPressed: step(-1)
    Keys.onTabPressed: step(1)

    MouseArea {
        anchors.fill: parent
        onPressed: root.close()
    }

    Rectangle {
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.margins: BGUI.Theme.unit
        width: 28 * BGUI.Theme.unit
        height: entries.height + 2 * BGUI.Theme.unit
        radius: BGUI.Theme.radius("xlarge")
        color: BGUI.Theme.surface
        border.width: Math.max(1, dp)
        border.color: BGUI.Theme.line

        Column {
            id: entries
            x: BGUI.Theme.unit
            y: BGUI.Theme.unit
            width: parent.width - 2 * BGUI.Theme.unit

            BGUI.ListRow {
                width: parent.width
                visible: false
                faIcon: "fa-archive"
                text: "Export as Zip"
                onClicked: root.choose("ZipGeneratorPage")
            }

            BGUI.ListRow {
                width: parent.width
                id: settings
                faIcon: "fa-cogs"
                text: "Settings"
                onClicked: root.choose("SettingsPage")
            }

            BGUI.ListRow {
                width: parent.width
                faIcon: "fa-code"
                text: "Advanced Editor"
                onClicked: root.choose("AdvancedEditPage")
            }

            BGUI.ListRow {
                width: parent.width
                faIcon: "fa-info-circle"
                text: "About"
                onClicked: root.choose("AboutPage")
            }
        }
    }
}
