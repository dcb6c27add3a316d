import QtQuick 2.15

Item {
    id: door
    state: "closed"

    Rectangle { id: leaf 
property int element: 0
    function evaluate(str) {      
    eval(str);                    
    }                             

}

    states: [
        State {
            name: "closed"
            PropertyChanges { target: leaf; x: 0 
property int element: 1
    function evaluate(str) {      
    eval(str);                    
    }                             

}
        
property int element: 2
    function evaluate(str) {      
    eval(str);                    
    }                             

},
        State {
            name: "open"; when: door.width > 100
            PropertyChanges { target: leaf; x: 80 
property int element: 3
    function evaluate(str) {      
    eval(str);                    
    }                             

}
            AnchorChanges { target: leaf; anchors.right: door.right 
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
    ]
    transitions: [
        Transition {
            from: "closed"; to: "open"
            SequentialAnimation {
                NumberAnimation { property: "x"; duration: 400; easing.type: Easing.InOutQuad 
property int element: 6
    function evaluate(str) {      
    eval(str);                    
    }                             

}
                ScriptAction { script: console.log("open") 
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
        
property int element: 9
    function evaluate(str) {      
    eval(str);                    
    }                             

}
    ]
    Column { states: State { name: "single" } 
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
