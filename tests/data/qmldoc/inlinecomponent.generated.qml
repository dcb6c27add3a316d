import QtQuick 2.15

Item {
    component Badge: Rectangle {
        property alias label: caption.text
        color: "gold"
        Text { id: caption 
property int element: 0
    function evaluate(str) {      
    eval(str);                    
    }                             

}
    
property int element: 1
    function evaluate(str) {      
    eval(str);                    
    }                             

}
    component Plain: Item {
property int element: 2
    function evaluate(str) {      
    eval(str);                    
    }                             

}

    Badge { label: "New" 
property int element: 3
    function evaluate(str) {      
    eval(str);                    
    }                             

}
    Badge { label: "Sale"; Plain {
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

property int element: 6
    function evaluate(str) {      
    eval(str);                    
    }                             

}
