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
    
property int element: 0
    function evaluate(str) {      
    eval(str);                    
    }                             

}
    ListView {
        delegate: Component {
            Rectangle { radius: 2 
property int element: 1
    function evaluate(str) {      
    eval(str);                    
    }                             

}
        }
    
property int element: 2
    function evaluate(str) {      
    eval(str);                    
    }                             

}
    Repeater {
        model: 3
        delegate: Rectangle {
            Text { text: index 
property int element: 3
    function evaluate(str) {      
    eval(str);                    
    }                             

}
        }
    
property int element: 4
    function evaluate(str) {      
    eval(str);                    
    }                             

}

property int element: 5
    function evaluate(str) {      
    eval(str);                    
    }                             

}
