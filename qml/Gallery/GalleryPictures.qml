// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0
import "samples.js" as Samples

/// Thumbnails, rounded pictures and the scope, which follows the mouse.
Card {
    id: root

    readonly property url picture: Samples.picture("vases")

    title: qsTr("Pictures")

    StateRow {
        label: qsTr("Thumbnails: picture, chosen, empty, disabled")

        Thumbnail { source: root.picture; text: "window.png" }
        Thumbnail { source: root.picture; text: qsTr("a picture with a long name.png"); selected: true }
        Thumbnail { text: qsTr("No picture") }
        Thumbnail { source: root.picture; text: qsTr("Disabled"); enabled: false }
    }

    StateRow {
        label: qsTr("Rounded thumbnails")

        RoundedThumbnail { source: root.picture; text: "Anna" }
        RoundedThumbnail { source: root.picture; text: qsTr("Chosen"); selected: true }
        RoundedThumbnail { source: root.picture; text: "16 dp"; radius: 16 * dp }
        RoundedThumbnail { text: qsTr("Nobody") }
    }

    StateRow {
        label: qsTr("Rounded picture, and a scope")

        RoundedImage {
            width: 24 * Theme.unit
            height: 16 * Theme.unit
            radius: 3 * Theme.unit
            source: root.picture
        }

        Image {
            id: ground
            width: 16 * Theme.unit
            height: 16 * Theme.unit
            source: root.picture
            fillMode: Image.PreserveAspectCrop

            ImageScope {
                id: scope

                readonly property point centre: mouse.hovered ? mouse.point.position
                                                              : Qt.point(ground.width * 0.45, ground.height * 0.6)

                x: centre.x - width / 2
                y: centre.y - height / 2
                width: 9 * Theme.unit
                height: width
                source: root.picture
                imageWidth: 2.5 * ground.width
                imageHeight: 2.5 * ground.height
                scopeX: 2.5 * centre.x - width / 2
                scopeY: 2.5 * centre.y - height / 2

                Rectangle {
                    anchors.fill: parent
                    radius: width / 2
                    color: "transparent"
                    border.width: 2 * dp
                    border.color: Theme.accent
                }
            }

            HoverHandler {
                id: mouse
            }
        }
    }
}
