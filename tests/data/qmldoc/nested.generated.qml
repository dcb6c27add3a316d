import QtQuick 2.15

Item {
    id: root
    width: 640
    height: 480

    Rectangle {
        id: card
        x: 12; y: 24
        color: "steelblue"

        Text { text: "Open" 
property int element: 0
    function evaluate(str) {      
    eval(str);                    
    }                             

}
        Image {
            source: "images/door.png"
            Rectangle {
property int element: 1
    function evaluate(str) {      
    eval(str);                    
    }                             

}
        
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

    Text {
        text: card.x + ", " + card.y
    
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
