// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor.workbench 1.0
import Nuvex.GUI 1.0 as BGUI
import "private"

/// A source file of the project as text: edited, searched, saved, played.
FormPage {
    id: root

    /// The file, below the project's folder.
    property alias path: file.path
    property string text
    property string savedText
    readonly property bool isChanged: text !== savedText

    function back() {
        if (isChanged)
            question.open();
        else
            shell.pop();
    }

    function open() {
        area.text = file.read();
        text = area.exactText();
        savedText = text;
    }

    function save() {
        const isSaved = file.write(text);
        if (isSaved)
            savedText = text;
        else if (file.faultLine > 0)
            area.goToLine(file.faultLine);
        notice.type = isSaved ? "success" : "danger";
        notice.text = isSaved ? "Saved local" : file.problem;
        return isSaved;
    }

    // What is played is what the file holds.
    function test() {
        if (isChanged && !save())
            return;
        shell.playDocument(path);
    }

    objectName: "TextEditor"
    title: path + (isChanged ? " •" : "")
    subtitle: CAPI.getBaseProjectName()
    Component.onCompleted: open()
    onActiveChanged: {
        if (!active)
            return;
        shell.stopPlaying();
        CAPI.setFullScreen(CAPI.isDevice());
        area.forceActiveFocus();
    }

    actions: [
        BGUI.ActionButton {
            size: "large"
            faIcon: "fa-undo"
            toolTip: qsTr("Undo (Ctrl+Z)")
            onDark: true
            enabled: area.edit.canUndo && root.isChanged
            onClicked: area.edit.undo()
        },
        BGUI.ActionButton {
            size: "large"
            faIcon: "fa-search"
            toolTip: qsTr("Find (Ctrl+F)")
            onDark: true
            onClicked: search.open()
        },
        BGUI.ActionButton {
            size: "large"
            faIcon: "fa-play"
            toolTip: root.isChanged ? qsTr("Save and test (F5)") : qsTr("Test (F5)")
            onDark: true
            visible: file.isQml
            onClicked: root.test()
        },
        BGUI.Button {
            anchors.verticalCenter: parent ? parent.verticalCenter : undefined
            objectName: "save"
            size: "large"
            type: "primary"
            faIcon: "fa-floppy-o"
            text: qsTr("Save")
            enabled: root.isChanged
            onClicked: root.save()
        }
    ]

    SourceFile {
        id: file
    }

    Column {
        id: head
        width: parent.width

        BGUI.Notice {
            objectName: "unreadable"
            radius: 0
            type: "danger"
            text: file.isReadable ? "" : qsTr("This file cannot be read, or is too large for a text.")
        }

        BGUI.Notice {
            objectName: "encoding"
            radius: 0
            type: "warning"
            text: file.isOtherEncoding ? qsTr("This file is not UTF-8, so some characters may not show. Saving makes "
                                              + "it UTF-8 and keeps the file as it is now beside it.") : ""
        }

        BGUI.Notice {
            id: notice
            objectName: "message"
            radius: 0
            closable: true
        }

        SearchBar {
            id: search
            width: parent.width
            area: area
        }
    }

    BGUI.QMLTextArea {
        id: area
        objectName: "source"
        anchors.top: head.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        focus: true
        readOnly: !file.isReadable
        errorLine: file.faultLine
        onTextChanged: {
            root.text = area.exactText();
            notice.text = "";
            file.faultLine = 0;
        }
    }

    LeaveQuestion {
        id: question
        size: "large"
        project: root.path
        onLeaveWanted: root.shell.pop()
        onSaveWanted: {
            if (root.save())
                root.shell.pop();
        }
        onClosed: area.forceActiveFocus()
    }

    Shortcut {
        sequence: "Ctrl+S"
        enabled: root.active
        onActivated: root.save()
    }

    Shortcut {
        sequence: "Ctrl+F"
        enabled: root.active
        onActivated: search.open()
    }

    Shortcut {
        sequence: "F5"
        enabled: root.active && file.isQml
        onActivated: root.test()
    }
}
