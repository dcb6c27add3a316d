// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Nuvex.GUI 1.0 as BGUI
import Nuvex.Native 1.1
import "words.js" as Words

/// What the cloud has to get, with pictures: the account's projects, or the store's archives. It is listed anew
/// whenever it is shown. The arrow keys move, Enter chooses.
FocusScope {
    id: root

    property bool isStore: false
    // Empty while there is a way to the cloud; else why there is none, and what to do about it.
    property string obstacle
    property string remedy
    property string remedyText
    // What is under way must end before another entry is chosen.
    property bool canChoose: true
    property string emptyTitle
    property string emptyText
    // Further detail of an entry, from its name.
    property var detailOf: name => ""

    property var entries: []
    property bool isListed: false
    property string error

    readonly property real rowHeight: Math.max(8 * BGUI.Theme.unit, Math.min(height / 9, 12 * BGUI.Theme.unit))
    readonly property real line: Math.max(1, dp)

    // `source` and `name` as the type Transfers lists them.
    signal chosen(string source, string name)
    signal remedyChosen()
    signal aboutToList()

    function reload() {
        if (obstacle !== "" || catalog.running)
            return;
        error = "";
        aboutToList();
        if (isStore)
            catalog.listArchives();
        else
            catalog.listProjects();
    }

    function detail(entry) {
        return [Words.size(entry.bytes), Words.time(entry.updated), detailOf(entry.name)]
               .filter(part => part !== "").join("  ·  ");
    }

    onVisibleChanged: {
        if (visible)
            reload();
    }

    Transfers {
        id: catalog
        onListed: {
            root.entries = entries;
            root.isListed = true;
        }
        onFinished: root.error = error
    }

    Rectangle {
        width: parent.width
        height: Math.min(list.contentHeight + 2 * root.line, parent.height)
        visible: list.visible
        color: BGUI.Theme.surface
        border.width: root.line
        border.color: BGUI.Theme.line
    }

    ListView {
        id: list
        anchors.fill: parent
        anchors.margins: root.line
        visible: count > 0 && root.obstacle === "" && root.error === ""
        focus: true
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        keyNavigationEnabled: true
        model: root.entries
        T.ScrollBar.vertical: BGUI.ScrollBar {}

        delegate: BGUI.ListRow {
            id: row
            width: list.width
            height: root.rowHeight
            focus: true
            // Only the current row is a stop for the Tab key.
            focusPolicy: ListView.isCurrentItem || activeFocus ? Qt.StrongFocus : Qt.ClickFocus
            enabled: root.canChoose
            size: "large"
            faIcon: root.isStore ? "fa-archive" : "fa-cloud"
            text: modelData.name
            detail: root.detail(modelData)
            picture: modelData.picture
            pictureWidth: 16 / 9 * contentItem.height
            onClicked: root.chosen(modelData.source, modelData.name)

            BGUI.FontAwesomeIcon {
                faIcon: "fa-cloud-download"
                size: "large"
                color: BGUI.Theme.mutedInk
            }
        }
    }

    BGUI.EmptyState {
        anchors.centerIn: parent
        width: parent.width
        visible: root.obstacle !== ""
        faIcon: "fa-cloud"
        title: root.obstacle
        text: root.remedy

        BGUI.Button {
            visible: root.remedyText !== ""
            focus: visible
            type: "primary"
            size: "large"
            text: root.remedyText
            onClicked: root.remedyChosen()
        }
    }

    BGUI.EmptyState {
        anchors.centerIn: parent
        width: parent.width
        visible: root.obstacle === "" && root.error !== ""
        isError: true
        faIcon: "fa-exclamation-triangle"
        title: root.error
        text: qsTr("Projects on this computer go on playing. Look at the network connection, then try again.")

        BGUI.Button {
            focus: visible
            type: "primary"
            size: "large"
            faIcon: "fa-refresh"
            text: qsTr("Try again")
            onClicked: root.reload()
        }
    }

    BGUI.EmptyState {
        anchors.centerIn: parent
        width: parent.width
        visible: root.obstacle === "" && root.error === "" && root.entries.length === 0
        faIcon: root.isStore ? "fa-shopping-cart" : "fa-cloud"
        title: root.isListed ? root.emptyTitle : qsTr("Asking the cloud ...")
        text: root.isListed ? root.emptyText : ""
    }
}
