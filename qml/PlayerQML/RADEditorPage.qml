// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Window 2.15
import Nuvex.Deployment 1.0
import Nuvex.Editor.desk 1.0
import Nuvex.Editor.workbench 1.0
import Nuvex.GUI 1.0 as BGUI
import "private"

/// The editor for mouse and keyboard: palette at the left, canvas in the middle, properties at the right, the source
/// below, one toolbar above. What is done to the document stands in its desk.
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
        if (transfer.running)
            desk.say(qsTr("%1 is being published, and leaving would end that. Wait, or cancel it.")
                     .arg(toolbar.project));
        else if (desk.isChanged)
            question.open();
        else
            shell.pop();
    }

    function undo() {
        desk.undo();
        side.tab = 0;
    }

    function publish() {
        if (desk.saveChanges())
            transfer.publish(toolbar.project);
    }

    function play() {
        const file = desk.preparePlay();
        if (file !== "")
            shell.playDocument(file);
    }

    objectName: "RADEditorPage"
    onActiveChanged: {
        if (!active)
            return;
        shell.stopPlaying();
        CAPI.setFullScreen(false);
        canvas.takeKeyboard();
    }
    Component.onCompleted: desk.open()

    EditingDesk {
        id: desk
        objectName: "desk"
        frameHost: canvas.frameHost
        hold: transfer.running ? qsTr("Not saved: %1 is being published.").arg(toolbar.project) : ""
    }

    Rectangle {
        anchors.fill: parent
        color: BGUI.Theme.ground
    }

    Toolbar {
        id: toolbar
        width: parent.width
        desk: desk
        project: CAPI.getBaseProjectName()
        zoom: canvas.frame ? canvas.frame.viewport.zoom : 1
        onLeave: root.leave()
        onUndone: root.undo()
        onZoomed: canvas.zoomBy(notches)
        onZoomedTo: canvas.zoomTo(scale)
        onFitted: canvas.fit()
        onKeysWanted: sheet.open()
        hasCloud: Deployment.available && transfer.user !== ""
        canPublish: !transfer.running
        onPlayWanted: root.play()
        onPublishWanted: root.publish()
    }

    LeftPane {
        id: left
        anchors.top: toolbar.bottom
        anchors.bottom: parent.bottom
        width: 26 * BGUI.Theme.unit
        desk: desk
        dragArea: root
    }

    CanvasPane {
        id: canvas
        anchors.top: toolbar.bottom
        anchors.left: left.right
        anchors.right: side.left
        anchors.bottom: source.visible ? source.top : parent.bottom
        focus: true
        desk: desk
        hand: toolbar.handIsOn
        onEntriesWanted: side.openEntries()
    }

    SourcePane {
        id: source
        anchors.left: left.right
        anchors.right: side.left
        anchors.bottom: parent.bottom
        height: Math.round(0.4 * (parent.height - toolbar.height))
        visible: toolbar.sourceIsShown || desk.fault !== null
        desk: desk
    }

    SidePane {
        id: side
        anchors.top: toolbar.bottom
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        width: 42 * BGUI.Theme.unit
        desk: desk
    }

    Rectangle {
        anchors.top: canvas.top
        anchors.left: canvas.left
        anchors.right: canvas.right
        height: transfer.height + 2 * BGUI.Theme.unit
        visible: transfer.visible
        color: BGUI.Theme.surface
    }

    CloudTransfer {
        id: transfer
        objectName: "transfer"
        anchors.top: canvas.top
        anchors.left: canvas.left
        anchors.right: canvas.right
        anchors.margins: BGUI.Theme.unit
        anchors.leftMargin: 2 * BGUI.Theme.unit
        onTold: desk.tell(text, type, type === "success" ? DeskLimits.message : DeskLimits.faultMessage)
        onRunningChanged: {
            if (!running)
                desk.takeIn();
        }
    }

    KeySheet {
        id: sheet
    }

    ElsewhereQuestion {
        desk: desk
        isActive: root.active
    }

    LargeQuestion {
        desk: desk
        onRejected: root.shell.pop()
    }

    LeaveQuestion {
        id: question
        project: toolbar.project
        onLeaveWanted: {
            desk.recovery.forget();
            root.shell.pop();
        }
        onSaveWanted: {
            if (desk.save())
                root.shell.pop();
        }
    }

    RecoveryQuestion {
        desk: desk
        project: toolbar.project
    }

    EditorKeys {
        desk: desk
        isActive: root.active
        isWriting: root.isWriting
        onPlayWanted: root.play()
        onFitted: canvas.fit()
        onZoomedTo: canvas.zoomTo(scale)
        onSourceToggled: toolbar.sourceIsShown = !toolbar.sourceIsShown
        onKeysWanted: sheet.open()
        onUndone: root.undo()
    }
}
