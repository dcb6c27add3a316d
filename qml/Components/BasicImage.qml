// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "private"
import "private/picture"

/// A picture. While its file is missing or broken it shows a quiet placeholder; it comes back with the file.
///
/// The properties source, fillMode and status stand before those of Image, which itself stays empty: a Picture inside
/// does the work, so that the pixels can go while the slide is absent, and come, without touching the source.
Image {
    id: root

    property int element: -1; function evaluate(str) {eval(str);}
    property var editor
    property var preview: preview
    property string cPrototype: "BasicImage {
    width: 640
    height: 480
    source: 'qrc:///Nuvex/Components/icons/noImage.png'
    fillMode: Image.PreserveAspectFit
}"

    property url source: "qrc:///Nuvex/Components/icons/noImage.png"
    property int fillMode: Image.PreserveAspectFit
    readonly property int status: picture.status

    width: picture.naturalWidth
    height: picture.naturalHeight
    Component.onCompleted: editor = Qt.createComponent("BasicImageEditor.qml")

    Picture {
        id: picture
        anchors.fill: parent
        source: root.source
        fillMode: root.fillMode
        decodeSize: root.sourceSize
        mirror: root.mirror
        cache: root.cache
    }

    Component {
        id: preview

        PicturePreview {
            source: root.source
        }
    }
}
