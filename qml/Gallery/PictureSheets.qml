// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "../Components"
import "samples.js" as Samples

/// Pictures, video and web pages.
SheetColumns {
    id: root

    narrowest: 40
    most: 4

    Specimen {
        title: "BasicImage"
        about: qsTr("A picture")
        BasicImage {
            width: 640; height: 360; source: Samples.picture("gelato"); fillMode: Image.PreserveAspectCrop
        }
    }

    Specimen {
        title: "KImage"
        about: qsTr("A picture that is approached slowly")
        KImage { width: 640; height: 360; source: Samples.picture("court"); kTime: 6000 }
    }

    Specimen {
        title: "LiveImage"
        about: qsTr("A picture that comes and goes")
        LiveImage { width: 640; height: 360; source: Samples.picture("olives"); backColor: "#f3eee3" }
    }

    Specimen {
        title: "Flickr"
        about: qsTr("Photos of the web by their tags; here without network")
        Flickr { width: 640; height: 360; service: "" }
    }

    Specimen {
        title: "BasicWebView"
        about: qsTr("A web page; here its mark, before one is chosen")

        BasicWebView {
            width: 640
            height: 360

            Loader {
                anchors.fill: parent
                sourceComponent: parent.preview
            }
        }
    }

    // A player takes the window's thread for a moment when it is made: last.
    Specimen {
        title: "BasicVideo"
        about: qsTr("A video")
        BasicVideo { width: 640; height: 238; muted: true; source: Samples.film("espresso") }
    }

    Specimen {
        title: "ChromaVideo"
        about: qsTr("A video without its green")
        wall: "#6d1826"
        ChromaVideo { width: 540; height: 360; muted: true; source: Samples.film("card") }
    }
}
