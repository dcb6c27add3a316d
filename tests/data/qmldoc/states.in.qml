import QtQuick 2.15

Item {
    id: door
    state: "closed"

    Rectangle { id: leaf }

    states: [
        State {
            name: "closed"
            PropertyChanges { target: leaf; x: 0 }
        },
        State {
            name: "open"; when: door.width > 100
            PropertyChanges { target: leaf; x: 80 }
            AnchorChanges { target: leaf; anchors.right: door.right }
        }
    ]
    transitions: [
        Transition {
            from: "closed"; to: "open"
            SequentialAnimation {
                NumberAnimation { property: "x"; duration: 400; easing.type: Easing.InOutQuad }
                ScriptAction { script: console.log("open") }
            }
        }
    ]
    Column { states: State { name: "single" } }
}
