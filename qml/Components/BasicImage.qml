// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "private"
import "private/picture"
import "private/picture/media.js" as Media

/// A picture: Image with all its properties, which comes back with its file and gives its pixels up while its slide is
/// absent (see private/picture/Picture.qml). The property source stands before that of Image, so that the pixels can
/// come and go without it being touched.
Picture {
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

    address: Media.address(source)
    fillMode: Image.PreserveAspectFit
    Component.onCompleted: editor = Qt.createComponent("BasicImageEditor.qml")

    Component {
        id: preview

        PicturePreview {
            source: root.source
        }
    }
}
