// A menu board, as the editor writes them.
import QtQuick 2.15
import QtQuick.Controls 1.4 as Controls
import "helpers.js" as Helpers

Rectangle {
    id: board; width: 1920; height: 1080
    color: "#202830"
    required property string title
    readonly property var days: ["Mon", 'Tue', "Wed"]
    default property alias content: column.data
    property Component row: Component { Text { text: "row" } }
    signal picked(int index, string name)
    enum Mode { Closed, Open = 2 }

    anchors { fill: parent; leftMargin: 8 }
    font.pixelSize: 24
    Keys.onPressed: event.accepted = true
    Layout.fillWidth: true

    component Price: Text {
        horizontalAlignment: Text.AlignRight
    }

    transform: Rotation { angle: 5; axis { x: 0; y: 0; z: 1 } }
    states: [
        State { name: "late"; when: hour > 22
            PropertyChanges { target: board; opacity: 0.5 }
        }
    ]
    transitions: Transition { NumberAnimation { properties: "opacity"; duration: 300 } }
    Behavior on x { SmoothedAnimation { velocity: 200 } }

    Column {
        id: column
        Repeater {
            model: ListModel { ListElement { label: "Soup"; cents: 450 } }
            delegate: Price { text: label + " " + (cents / 100).toFixed(2) /* EUR */ }
        }
    }
    onWidthChanged: { console.log("width", width) }
    Component.onCompleted: Helpers.start(board)
}
