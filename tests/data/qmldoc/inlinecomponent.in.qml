import QtQuick 2.15

Item {
    component Badge: Rectangle {
        property alias label: caption.text
        color: "gold"
        Text { id: caption }
    }
    component Plain: Item {}

    Badge { label: "New" }
    Badge { label: "Sale"; Plain {} }
}
