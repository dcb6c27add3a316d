import QtQuick 2.15

Item {
    width: 10
    Text { text: "bom" }
}
