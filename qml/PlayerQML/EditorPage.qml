// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Window 2.15
import Nuvex.Editor.desk 1.0
import Nuvex.Editor.workbench 1.0
import Nuvex.GUI 1.0 as BGUI
import "private"

/// The editor for touch: the canvas, what is done most above it, what can be done to the selected item below.
/// Properties and source are edited on pages of their own, which get this page's desk.
StackPage {
    id: root

    readonly property Item focused: Window.activeFocusItem
    readonly property bool isWriting: focused !== null && focused.cursorPosition !== undefined

    // Escape and the back key: out of what goes on, out of a text, up to what holds the item, out of the page.
    function back() {
        if (canvas.cancelDrag())
            return;
        if (isWriting)
            canvas.takeKeyboard();
        else if (desk.selection.item !== null)
            desk.selection.goUp();
        else
            leave();
    }

    function leave() {
        desk.settle();
        if (desk.isChanged)
            question.open();
        else
            shell.pop();
    }

    function play() {
        const file = desk.preparePlay();
        if (file !== "")
            shell.playDocument(file);
    }

    function editProperties() {
        desk.settle();
        shell.push({ item: Qt.resolvedUrl("PropertyEditor.qml"), properties: { desk: desk }, immediate: true });
    }

    function editItem() {
        desk.settle();
        if (desk.selection.items.length === 1)
            shell.push({ item: Qt.resolvedUrl("ItemEditor.qml"), properties: { desk: desk }, immediate: true });
    }

    // The way to mend a document that cannot be shown; what is saved there is taken in when this page is back.
    function editSource() {
        shell.push({ item: shell.page("TextEditor"), properties: { path: "main.qml" }, immediate: true });
    }

    objectName: "EditorPage"
    onActiveChanged: {
        if (!active)
            return;
        shell.stopPlaying();
        canvas.takeKeyboard();
    }
    Component.onCompleted: desk.open()

    EditingDesk {
        id: desk
        objectName: "desk"
        frameHost: canvas.frameHost
        forTouch: true
    }

    Rectangle {
        anchors.fill: parent
        color: BGUI.Theme.ground
    }

    BGUI.PageHeader {
        id: header
        title: CAPI.getBaseProjectName() + (desk.isChanged ? " •" : "")
        onBack: root.leave()

        BGUI.ActionButton {
            size: "large"
            faIcon: "fa-plus"
            toolTip: qsTr("Add a part")
            onDark: true
            enabled: desk.live.root !== null
            onClicked: parts.open()
        }

        BGUI.ActionButton {
            size: "large"
            faIcon: "fa-undo"
            toolTip: qsTr("Undo")
            onDark: true
            enabled: desk.canUndo
            onClicked: desk.undo()
        }

        BGUI.ActionButton {
            size: "large"
            faIcon: "fa-repeat"
            toolTip: qsTr("Redo")
            onDark: true
            enabled: desk.canRedo
            onClicked: desk.redo()
        }

        BGUI.ActionButton {
            size: "large"
            faIcon: "fa-play"
            toolTip: qsTr("Play")
            onDark: true
            onClicked: root.play()
        }

        BGUI.Button {
            anchors.verticalCenter: parent ? parent.verticalCenter : undefined
            size: "large"
            type: "primary"
            faIcon: "fa-floppy-o"
            text: qsTr("Save")
            onClicked: desk.save()
        }
    }

    CanvasPane {
        id: canvas
        anchors.top: header.bottom
        anchors.bottom: bar.top
        width: parent.width
        focus: true
        desk: desk
        emptyText: qsTr("Add a part with the plus at the top.")
        onEntriesWanted: root.editItem()
        onSourceWanted: root.editSource()
    }

    ItemBar {
        id: bar
        anchors.bottom: parent.bottom
        width: parent.width
        desk: desk
        onEditWanted: root.editItem()
        onPropertiesWanted: root.editProperties()
        onFitted: canvas.fit()
    }

    PartsSheet {
        id: parts
        onChosen: desk.insertion.addChosen(type)
    }

    ElsewhereQuestion {
        desk: desk
        isActive: root.active
    }

    LargeQuestion {
        desk: desk
        onRejected: root.shell.pop()
    }

    RecoveryQuestion {
        desk: desk
        project: CAPI.getBaseProjectName()
    }

    LeaveQuestion {
        id: question
        size: "large"
        project: CAPI.getBaseProjectName()
        onLeaveWanted: {
            desk.recovery.forget();
            root.shell.pop();
        }
        onSaveWanted: {
            if (desk.save())
                root.shell.pop();
        }
    }
}
