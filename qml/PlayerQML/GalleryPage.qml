// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "private"

/// Every widget and component at a glance.
FormPage {
    id: root

    function chapter(text, faIcon, name) {
        return { "text": text, "faIcon": faIcon, "source": "qrc:///Nuvex/Components/gallery/" + name + ".qml" };
    }

    objectName: "GalleryPage"
    title: qsTr("Gallery")

    Loader {
        anchors.fill: parent
        focus: true
        source: "qrc:///Nuvex/GUI/Gallery.qml"
        onLoaded: item.chapters = item.chapters.concat([
            root.chapter(qsTr("Pictures"), "fa-picture-o", "PictureSheets"),
            root.chapter(qsTr("Texts"), "fa-font", "TextSheets"),
            root.chapter(qsTr("Time and news"), "fa-clock-o", "TimeSheets"),
            root.chapter(qsTr("Menus"), "fa-cutlery", "MenuSheets"),
            root.chapter(qsTr("Shows"), "fa-film", "ShowSheets"),
            root.chapter(qsTr("Layouts"), "fa-th-large", "LayoutSheets"),
            root.chapter(qsTr("Effects"), "fa-magic", "EffectSheets")
        ])
    }
}
