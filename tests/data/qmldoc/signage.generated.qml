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
            Image { source: CAPI.resolveUrl("images/first.jpg"); fillMode: Image.PreserveAspectCrop 
property int element: 0
    function evaluate(str) {      
    eval(str);                    
    }                             

}
            Text {
                x: 40
                y: 900
                text: qsTr("Welcome")
                font { family: "Open Sans"; pixelSize: 72 
property int element: 1
    function evaluate(str) {      
    eval(str);                    
    }                             

}
                color: "white"
            
property int element: 2
    function evaluate(str) {      
    eval(str);                    
    }                             

}
        
property int element: 3
    function evaluate(str) {      
    eval(str);                    
    }                             

}
        Slide {
            visible: schedule.active
            Component { id: dish; Text { text: model.name } }
            ListView {
                anchors { fill: parent; margins: 20 }
                model: ListModel {
                    ListElement { name: "Soup"; price: 4.5 
property int element: 4
    function evaluate(str) {      
    eval(str);                    
    }                             

}
                    ListElement { name: "Bread"; price: 2 
property int element: 5
    function evaluate(str) {      
    eval(str);                    
    }                             

}
                }
                delegate: dish
            
property int element: 6
    function evaluate(str) {      
    eval(str);                    
    }                             

}
        
property int element: 7
    function evaluate(str) {      
    eval(str);                    
    }                             

}
    
property int element: 8
    function evaluate(str) {      
    eval(str);                    
    }                             

}
    BGUI.Button { text: "Order"; onClicked: { main.state = "order" } 
property int element: 9
    function evaluate(str) {      
    eval(str);                    
    }                             

}
    Timer { id: schedule; property bool active: true; running: true; repeat: true; onTriggered: active = !active 
property int element: 10
    function evaluate(str) {      
    eval(str);                    
    }                             

}

property int element: 11
    function evaluate(str) {      
    eval(str);                    
    }                             

}
