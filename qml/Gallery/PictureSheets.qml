// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "../Components"

/// Pictures, video and web pages.
SheetColumns {
    id: root

    readonly property string samples: "qrc:///Nuvex/Components/icons/"
    readonly property url film: "qrc:///Nuvex/Components/icons/sampleSun.webm"

    narrowest: 40
    most: 4

    Specimen {
        title: "BasicImage"
        about: qsTr("A picture")
        BasicImage {
            width: 640; height: 360; source: root.samples + "sampleSalad.png"; fillMode: Image.PreserveAspectCrop
        }
    }

    Specimen {
        title: "KImage"
        about: qsTr("A picture that is approached slowly")
        KImage { width: 640; height: 360; source: root.samples + "sampleCake.png"; kTime: 6000 }
    }

    Specimen {
        title: "LiveImage"
        about: qsTr("A picture that comes and goes")
        LiveImage { width: 640; height: 360; source: root.samples + "samplePizza.png"; backColor: "#f3eee3" }
    }

    Specimen {
        title: "Flickr"
        about: qsTr("Photos of the web by their tags; here without network")
        Flickr { width: 640; height: 360; service: "" }
    }

    Specimen {
        title: "BasicVideo"
        about: qsTr("A video")
        BasicVideo { width: 640; height: 360; source: root.film }
    }

    Specimen {
        title: "ChromaVideo"
        about: qsTr("The same video without its green")
        ChromaVideo { width: 640; height: 360; source: root.film }
    }

    Specimen {
        title: "BasicWebView"
        about: qsTr("A web page; here before one is chosen")
        BasicWebView { width: 640; height: 360 }
    }
}
