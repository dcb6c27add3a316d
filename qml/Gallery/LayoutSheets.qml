// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Components 1.0

/// Containers that lay their items out.
SheetColumns {
    id: root

    narrowest: 40
    most: 4

    Specimen {
        title: "BasicRow"
        about: qsTr("Items side by side")

        BasicRow {
            color: "#17212b"
            radius: 12
            BasicRectangle { width: 120; height: 72; color: "#2878bd" }
            BasicRectangle { width: 120; height: 72; color: "#a8521c" }
            BasicRectangle { width: 120; height: 72; color: "#2f6f55" }
        }
    }

    Specimen {
        title: "BasicColumn"
        about: qsTr("Items one below the other")

        BasicColumn {
            color: "#17212b"
            radius: 12
            BasicRectangle { width: 120; height: 72; color: "#2878bd" }
            BasicRectangle { width: 120; height: 72; color: "#a8521c" }
            BasicRectangle { width: 120; height: 72; color: "#2f6f55" }
        }
    }

    Specimen {
        title: "BasicGrid"
        about: qsTr("Items in columns")

        BasicGrid {
            color: "#17212b"
            radius: 12
            cols: 2
            BasicRectangle { width: 120; height: 72; color: "#2878bd" }
            BasicRectangle { width: 120; height: 72; color: "#a8521c" }
            BasicRectangle { width: 120; height: 72; color: "#2f6f55" }
            BasicRectangle { width: 120; height: 72; color: "#6b4e9b" }
        }
    }
}
