// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Components 1.0
import "samples.js" as Samples

/// Containers that lay their items out.
SheetColumns {
    id: root

    narrowest: 40
    most: 4

    component Photo: BasicImage {
        width: 180
        height: 108
        fillMode: Image.PreserveAspectCrop
    }

    Specimen {
        title: "BasicRow"
        about: qsTr("Items side by side")

        BasicRow {
            color: "#17212b"
            radius: 12
            Photo { source: Samples.picture("tomatoes") }
            Photo { source: Samples.picture("olives") }
            Photo { source: Samples.picture("pasta") }
        }
    }

    Specimen {
        title: "BasicColumn"
        about: qsTr("Items one below the other")

        BasicColumn {
            color: "#17212b"
            radius: 12
            Photo { source: Samples.picture("tomatoes") }
            Photo { source: Samples.picture("olives") }
            Photo { source: Samples.picture("pasta") }
        }
    }

    Specimen {
        title: "BasicGrid"
        about: qsTr("Items in columns")

        BasicGrid {
            color: "#17212b"
            radius: 12
            cols: 2
            Photo { source: Samples.picture("tomatoes") }
            Photo { source: Samples.picture("olives") }
            Photo { source: Samples.picture("pasta") }
            Photo { source: Samples.picture("gelato") }
        }
    }
}
