// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor 1.0
import Nuvex.Editor.desk 1.0
import Nuvex.GUI 1.0 as BGUI

/// The source of the selected item; of the whole document while that cannot be shown.
FocusScope {
    id: root

    property var desk

    readonly property var record: desk.selection.record
    readonly property int beg: record && desk.revision >= 0 ? record.pfirst : 0
    readonly property int end: record && desk.revision >= 0 ? record.plast : 0
    readonly property bool isChanged: area.text !== shown
    property string shown
    // Whether the source can be laid out as text in a time that anyone would wait.
    property bool isShown: true

    function show() {
        const source = desk.fault ? CAPI.editedSourceCode() : CAPI.sourceCode(beg, end);
        isShown = source.length <= DeskLimits.longestSource
                  && source.split("\n").every(line => line.length <= DeskLimits.longestLine);
        shown = isShown ? source : "";
        area.text = shown;
        area.errorLine = desk.fault ? desk.fault.line : 0;
    }

    function apply() {
        if (root.desk.fault)
            root.desk.replaceAll(area.exactText());
        else
            root.desk.applySource(area.exactText());
    }

    Connections {
        target: root.desk

        function onRevisionChanged() {
            Qt.callLater(root.show);
        }

        function onFaultChanged() {
            Qt.callLater(root.show);
        }
    }

    Connections {
        target: root.desk.selection

        function onItemsChanged() {
            Qt.callLater(root.show);
        }
    }

    Rectangle {
        anchors.fill: parent
        color: BGUI.Theme.surface
    }

    Row {
        id: bar
        x: BGUI.Theme.unit
        y: BGUI.Theme.unit
        spacing: BGUI.Theme.unit

        BGUI.Button {
            objectName: "apply"
            type: "primary"
            text: qsTr("Apply")
            enabled: root.isChanged
            onClicked: root.apply()
        }

        BGUI.Button {
            text: qsTr("Reset")
            enabled: root.isChanged
            onClicked: root.show()
        }
    }

    BGUI.QMLTextArea {
        id: area
        objectName: "source"
        anchors.fill: parent
        anchors.margins: BGUI.Theme.unit
        anchors.topMargin: bar.height + 2 * BGUI.Theme.unit
        focus: true
        enabled: root.isShown && (root.record !== null || root.desk.fault !== null)
    }

    BGUI.Label {
        anchors.centerIn: parent
        visible: !root.isShown
        text: qsTr("This source, or a line of it, is too long to be shown as text.")
    }

    Rectangle {
        width: parent.width
        height: Math.max(1, dp)
        color: BGUI.Theme.line
    }
}
