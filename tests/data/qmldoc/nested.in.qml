import QtQuick 2.15

Item {
    id: root
    width: 640
    height: 480

    Rectangle {
        id: card
        x: 12; y: 24
        color: "steelblue"

        Text { text: "Open" }
        Image {
            source: "images/door.png"
            Rectangle {}
        }
    }

    Text {
        text: card.x + ", " + card.y
    }
}
