// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor.workbench 1.0
import Nuvex.GUI 1.0 as BGUI
import "private"

/// The properties that the selected item's source sets, each a row that leads to its code; or the item's whole source.
FormPage {
    id: root

    property var desk

    readonly property var record: desk && desk.revision >= 0 ? desk.selection.record : null
    readonly property var properties: record ? record.properties : ({})
    readonly property var names: Object.keys(properties).sort((a, b) => properties[a].pfirst - properties[b].pfirst)

    function back() {
        if (source.isChanged)
            question.open();
        else
            shell.pop();
    }

    function showSource() {
        source.show(CAPI.sourceCode(record.pfirst, record.plast));
        source.visible = true;
        source.forceActiveFocus();
    }

    function edit(name) {
        shell.push({ item: Qt.resolvedUrl("PropertyCodeEditor.qml"), immediate: true,
                     properties: { desk: desk, property: name } });
    }

    function firstLine(name) {
        const lines = properties[name] ? properties[name].value.split("\n") : [""];
        return lines.length > 1 ? lines[0] + " …" : lines[0];
    }

    function apply() {
        if (!source.isChanged || desk.applySource(source.code()))
            shell.pop();
        else
            source.forceActiveFocus();
    }

    objectName: "PropertyEditor"
    title: record ? desk.titleOf(desk.selection.item) : ""
    subtitle: CAPI.getBaseProjectName()

    actions: [
        BGUI.ActionButton {
            size: "large"
            faIcon: "fa-code"
            toolTip: qsTr("Source")
            onDark: true
            visible: !source.visible
            enabled: root.record !== null
            onClicked: root.showSource()
        },
        BGUI.Button {
            anchors.verticalCenter: parent ? parent.verticalCenter : undefined
            size: "large"
            type: "primary"
            text: qsTr("Apply")
            visible: source.visible
            onClicked: root.apply()
        }
    ]

    BGUI.EmptyState {
        anchors.centerIn: parent
        width: parent.width - 8 * BGUI.Theme.unit
        visible: root.names.length === 0 && !source.visible
        faIcon: "fa-list"
        title: qsTr("No property is set")
        text: qsTr("The item's source is behind the button at the top.")
    }

    Sheet {
        visible: root.names.length > 0 && !source.visible

        ListView {
            id: list
            objectName: "properties"
            width: parent.width
            height: contentHeight
            focus: true
            activeFocusOnTab: true
            interactive: false
            model: root.names

            delegate: BGUI.ListRow {
                width: list.width
                size: "large"
                text: modelData
                Accessible.name: text + ", " + root.firstLine(modelData)
                highlighted: ListView.isCurrentItem && list.activeFocus
                onClicked: {
                    list.currentIndex = index;
                    root.edit(modelData);
                }

                BGUI.Label {
                    width: Math.min(implicitWidth, list.width / 2)
                    muted: true
                    text: root.firstLine(modelData)
                    textFormat: Text.PlainText
                    wrapMode: Text.NoWrap
                    elide: Text.ElideRight
                }
            }
        }
    }

    CodeArea {
        id: source
        anchors.fill: parent
        visible: false
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
        project: root.title
        detail: qsTr("Without saving, the item stays as it is.")
        onLeaveWanted: root.shell.pop()
        onSaveWanted: root.apply()
    }
}
