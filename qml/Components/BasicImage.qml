// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "private"
import "private/media.js" as Media

/// A picture. While its file is missing or broken it shows a quiet placeholder; it comes back with the file.
/// In a slide that is not due it keeps no pixels.
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

    source: "qrc:///Nuvex/Components/icons/noImage.png"
    sourceSize: Media.decodedSize(source, width, height)
    fillMode: Image.PreserveAspectFit
    asynchronous: true
    autoTransform: true
    mipmap: true
    Component.onCompleted: editor = Qt.createComponent("BasicImageEditor.qml")

    PictureKeeper {}

    Component {
        id: preview

        PreviewTile {
            Image {
                anchors.fill: parent
                source: root.source
                sourceSize: Qt.size(128, 96)
                fillMode: Image.PreserveAspectFit
                asynchronous: true
            }
        }
    }
}
