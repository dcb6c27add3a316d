import QtQuick 2.15
import Nuvex.Components 1.0
import Nuvex.GUI 1.0 as BGUI

Rectangle {
    id: main
    width: 1920; height: 1080
    color: "black"
    property string cPrototype: "Rectangle { color: 'black' }"

    Slideshow {
        id: show
        anchors.fill: parent
        interval: 8000
        Slide {
            Image { source: CAPI.resolveUrl("images/first.jpg"); fillMode: Image.PreserveAspectCrop }
            Text {
                x: 40
                y: 900
                text: qsTr("Welcome")
                font { family: "Open Sans"; pixelSize: 72 }
                color: "white"
            }
        }
        Slide {
            visible: schedule.active
            Component { id: dish; Text { text: model.name } }
            ListView {
                anchors { fill: parent; margins: 20 }
                model: ListModel {
                    ListElement { name: "Soup"; price: 4.5 }
                    ListElement { name: "Bread"; price: 2 }
                }
                delegate: dish
            }
        }
    }
    BGUI.Button { text: "Order"; onClicked: { main.state = "order" } }
    Timer { id: schedule; property bool active: true; running: true; repeat: true; onTriggered: active = !active }
}
