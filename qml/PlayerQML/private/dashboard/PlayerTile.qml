// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Nuvex.GUI 1.0 as BGUI
import Nuvex.Native 1.1
import "players.js" as Players

/// A player: whether it is live, when it was last heard of, its name, its last screenshot, what it shows. Enter or a
/// click chooses its project, Del deletes it. Where it is small, the lines for host and project are left out.
T.AbstractButton {
    id: root

    property string name
    // The name that it shares with others, if it does.
    property string host
    property double heartbeat
    property string project
    property double now
    // Name of the screenshot in the cloud.
    property string screenshot
    // Whether it shows what the player showed before.
    property bool isOld: false
    // Whether it is to be fetched.
    property bool isSeen: false
    // Counts up when the screenshot is to be fetched again.
    property int round: 0
    property bool isCurrent: false

    readonly property real line: Math.max(1, dp)
    readonly property bool isSmall: width < 20 * BGUI.Theme.unit
    readonly property real lineHeight: (isSmall ? 3 : 4) * BGUI.Theme.unit
    readonly property real hostHeight: host !== "" && !isSmall ? 2.5 * BGUI.Theme.unit : 0
    readonly property real footHeight: isSmall ? 0 : 3.5 * BGUI.Theme.unit

    signal deleteRequested()

    function fetch() {
        address.object = "";
        if (isSeen)
            address.object = screenshot;
    }

    objectName: "playerTile"
    hoverEnabled: true
    text: name
    Accessible.name: qsTr("%1 %2, last heard of %3 ago, shows %4").arg(name).arg(host).arg(age.text)
                     .arg(project || qsTr("nothing"))

    onIsSeenChanged: {
        if (isSeen && address.object === "")
            fetch();
    }
    onRoundChanged: fetch()
    onIsOldChanged: {
        if (!isOld)
            fetch();
    }
    Component.onCompleted: fetch()

    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Keys.onDeletePressed: deleteRequested()

    background: Rectangle {
        radius: BGUI.Theme.radius("base")
        color: BGUI.Theme.surface
    }

    Rectangle {
        id: dot
        objectName: "liveDot"
        x: BGUI.Theme.unit
        y: (root.lineHeight - height) / 2 + 2 * root.line
        width: (root.isSmall ? 1 : 1.25) * BGUI.Theme.unit
        height: width
        radius: width / 2
        color: Players.color(root.heartbeat, root.now)
    }

    BGUI.Label {
        id: age
        objectName: "age"
        anchors.left: dot.right
        anchors.leftMargin: BGUI.Theme.unit / 2
        anchors.verticalCenter: dot.verticalCenter
        text: root.heartbeat > 0 ? Players.age(root.heartbeat, root.now) : qsTr("never")
        textFormat: Text.PlainText
        wrapMode: Text.NoWrap
        size: "small"
        muted: true
    }

    BGUI.Label {
        objectName: "playerName"
        anchors.left: age.right
        anchors.leftMargin: BGUI.Theme.unit
        anchors.right: remove.visible ? remove.left : parent.right
        anchors.rightMargin: remove.visible ? 0 : BGUI.Theme.unit
        anchors.verticalCenter: dot.verticalCenter
        text: root.name
        textFormat: Text.PlainText
        wrapMode: Text.NoWrap
        elide: Text.ElideMiddle // many names differ at their ends
        size: root.isSmall ? "small" : "base"
        strong: true
    }

    BGUI.Label {
        objectName: "playerHost"
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.margins: BGUI.Theme.unit
        y: root.lineHeight
        visible: root.hostHeight > 0
        text: root.host
        textFormat: Text.PlainText
        wrapMode: Text.NoWrap
        elide: Text.ElideRight
        size: "small"
        muted: true
    }

    T.AbstractButton {
        id: remove
        readonly property string faIcon: "fa-times"
        readonly property string toolTip: qsTr("Delete %1").arg(root.name)

        anchors.right: parent.right
        anchors.rightMargin: root.line
        anchors.verticalCenter: dot.verticalCenter
        width: root.lineHeight
        height: root.lineHeight
        visible: !root.isSmall || root.hovered || hovered || root.visualFocus
        focusPolicy: Qt.NoFocus
        hoverEnabled: true
        Accessible.name: toolTip
        onClicked: root.deleteRequested()

        contentItem: BGUI.FontAwesomeIcon {
            faIcon: remove.faIcon
            size: root.isSmall ? "small" : "base"
            color: remove.hovered ? BGUI.Theme.danger : BGUI.Theme.mutedInk
        }
    }

    Rectangle {
        id: frame
        x: root.line
        y: root.lineHeight + root.hostHeight + 4 * root.line
        width: parent.width - 2 * root.line
        height: parent.height - y - root.footHeight - 4 * root.line
        color: BGUI.Theme.sunken

        BoundedImage {
            id: picture
            objectName: "screenshot"
            anchors.fill: parent
            source: address.url
            edge: 1024
            cache: false
            asynchronous: true
            fillMode: Image.PreserveAspectFit
            visible: status === Image.Ready
            opacity: root.isOld ? 0.35 : 1
        }

        Image {
            anchors.centerIn: parent
            width: Math.min(parent.width, parent.height) * 0.6
            height: width
            sourceSize.width: 128
            visible: picture.status === Image.Error
            source: visible ? "qrc:///Nuvex/Components/icons/weather-unknown.png" : ""
        }

        Rectangle {
            width: parent.width
            height: note.height + BGUI.Theme.unit / 2
            anchors.bottom: parent.bottom
            visible: root.isOld
            color: BGUI.Theme.bar

            BGUI.Label {
                id: note
                objectName: "oldPicture"
                anchors.centerIn: parent
                width: parent.width - BGUI.Theme.unit
                horizontalAlignment: Text.AlignHCenter
                text: root.isSmall ? qsTr("old") : qsTr("Old picture – a new one is to come")
                textFormat: Text.PlainText
                wrapMode: Text.NoWrap
                elide: Text.ElideRight
                size: "small"
                color: BGUI.Theme.barInk
            }
        }
    }

    BGUI.Label {
        objectName: "playerProject"
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.margins: BGUI.Theme.unit
        anchors.verticalCenter: frame.bottom
        anchors.verticalCenterOffset: (root.footHeight + 4 * root.line) / 2
        visible: !root.isSmall
        text: root.project || qsTr("No project")
        textFormat: Text.PlainText
        wrapMode: Text.NoWrap
        elide: Text.ElideRight
        muted: root.project === ""
    }

    Rectangle {
        anchors.fill: parent
        radius: BGUI.Theme.radius("base")
        color: "transparent"
        border.width: root.visualFocus ? 3 * root.line : root.line
        border.color: root.visualFocus || root.hovered ? BGUI.Theme.accent : BGUI.Theme.line
    }

    DownloadUrl {
        id: address
    }
}
