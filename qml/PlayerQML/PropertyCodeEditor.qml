// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor.workbench 1.0
import Nuvex.GUI 1.0 as BGUI
import "private"

/// The code of one of the selected item's properties. What cannot be used leaves the document as it was, and this page
/// says why.
FormPage {
    id: root

    property var desk
    property string property

    function back() {
        if (area.isChanged)
            question.open();
        else
            shell.pop();
    }

    // Puts the code in the place of the property's in the item's source.
    function apply() {
        const record = desk.selection.record;
        const range = record.properties[property];
        const item = CAPI.sourceCode(record.pfirst, range.pfirst) + area.code()
                   + CAPI.sourceCode(range.plast, record.plast);
        if (!area.isChanged || desk.applySource(item))
            shell.pop();
        else
            area.forceActiveFocus();
    }

    objectName: "PropertyCodeEditor"
    title: property
    subtitle: desk ? desk.titleOf(desk.selection.item) : ""
    Component.onCompleted: {
        const range = desk.selection.record.properties[property];
        area.show(CAPI.sourceCode(range.pfirst, range.plast));
    }

    actions: BGUI.Button {
        anchors.verticalCenter: parent ? parent.verticalCenter : undefined
        size: "large"
        type: "primary"
        text: qsTr("Apply")
        onClicked: root.apply()
    }

    CodeArea {
        id: area
        anchors.fill: parent
        focus: true
    }

    MessageStrip {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 2 * BGUI.Theme.unit
        desk: root.active ? root.desk : null
    }

    LeaveQuestion {
        id: question
        size: "large"
        project: root.property
        detail: qsTr("Without saving, the item stays as it is.")
        onLeaveWanted: root.shell.pop()
        onSaveWanted: root.apply()
    }
}
