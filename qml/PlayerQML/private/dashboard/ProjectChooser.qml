// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Nuvex.GUI 1.0 as BGUI

/// A list of projects over the page, to choose one: typing narrows it down, Down goes into it, Enter chooses, Escape
/// chooses nothing. With `takesOthers` a name that is not in the list can be chosen too.
BGUI.ModalPopup {
    id: root

    property string title
    // Names.
    property var projects: []
    property bool isLoading: false
    property bool takesOthers: false
    // What is said where there is nothing to choose.
    property string emptyText

    readonly property string typed: field.text.trim()
    readonly property var fitting: projects.filter(name => name.toLowerCase().includes(typed.toLowerCase()))
    readonly property var offered: takesOthers && typed !== "" && !projects.includes(typed) ? fitting.concat(typed)
                                                                                            : fitting

    signal chosen(string project)

    function choose(index) {
        if (index < 0 || index >= offered.length)
            return;
        const project = offered[index];
        close();
        chosen(project);
    }

    objectName: "projectChooser"
    width: Math.min(parent ? parent.width - 4 * BGUI.Theme.unit : 0, 60 * BGUI.Theme.unit)
    height: Math.min(parent ? parent.height - 4 * BGUI.Theme.unit : 0, 64 * BGUI.Theme.unit)
    padding: 3 * BGUI.Theme.unit
    closePolicy: T.Popup.CloseOnPressOutside
    onOpened: {
        field.clear();
        list.currentIndex = 0;
        field.forceActiveFocus(Qt.TabFocusReason);
    }

    background: Rectangle {
        radius: BGUI.Theme.radius("xlarge")
        color: BGUI.Theme.surface
    }

    contentItem: FocusScope {
        Keys.onEscapePressed: root.close()
        Keys.onBackPressed: root.close()

        BGUI.Label {
            id: heading
            width: parent.width
            text: root.title
            textFormat: Text.PlainText
            size: "h4"
            maximumLineCount: 2
            elide: Text.ElideRight
        }

        BGUI.Input {
            id: field
            objectName: "chooserField"
            anchors.top: heading.bottom
            anchors.topMargin: 2 * BGUI.Theme.unit
            width: parent.width
            size: "large"
            faIcon: "fa-search"
            clearable: true
            placeholderText: root.takesOthers ? qsTr("A project's name") : qsTr("Find a project")
            onTextChanged: list.currentIndex = 0
            onAccepted: root.choose(list.currentIndex)
            Keys.onDownPressed: list.forceActiveFocus(Qt.TabFocusReason)
        }

        ListView {
            id: list
            anchors.top: field.bottom
            anchors.topMargin: BGUI.Theme.unit
            anchors.bottom: cancel.top
            anchors.bottomMargin: 2 * BGUI.Theme.unit
            width: parent.width
            clip: true
            keyNavigationEnabled: true
            boundsBehavior: Flickable.StopAtBounds
            model: root.offered
            T.ScrollBar.vertical: BGUI.ScrollBar {}

            delegate: BGUI.ListRow {
                width: list.width
                size: "large"
                focus: true
                focusPolicy: ListView.isCurrentItem || activeFocus ? Qt.StrongFocus : Qt.ClickFocus
                highlighted: ListView.isCurrentItem
                strong: false
                faIcon: "fa-folder"
                text: modelData
                onClicked: root.choose(index)
            }
        }

        BGUI.Label {
            anchors.centerIn: list
            width: list.width
            visible: list.count === 0
            text: root.isLoading ? qsTr("Looking for projects…")
                                 : (root.projects.length > 0 ? qsTr("No project has that name.") : root.emptyText)
            textFormat: Text.PlainText
            muted: true
            horizontalAlignment: Text.AlignHCenter
        }

        BGUI.Button {
            id: cancel
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            size: "large"
            text: qsTr("Cancel")
            onClicked: root.close()
        }
    }
}
