import QtQuick 2.15

Item {
    Component {
        id: row
        Rectangle {
            width: 5
            Text { text: "not numbered" }
        }
    }
    Text {
        anchors { fill: parent; margins: 4 }
        text: "numbered"
    }
    ListView {
        delegate: Component {
            Rectangle { radius: 2 }
        }
    }
    Repeater {
        model: 3
        delegate: Rectangle {
            Text { text: index }
        }
    }
}
