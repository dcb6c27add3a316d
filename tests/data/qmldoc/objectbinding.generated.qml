import QtQuick 2.15

Image {
    source: "fan.png"
    transform: Rotation {
        origin.x: 40; origin.y: 40
        angle: 15
        Behavior on angle {
            NumberAnimation { duration: 90 
property int element: 0
    function evaluate(str) {      
    eval(str);                    
    }                             

}
        }
    }
    gradient: Gradient {
        GradientStop { position: 0; color: "white" 
property int element: 1
    function evaluate(str) {      
    eval(str);                    
    }                             

}
        GradientStop { position: 1; color: "black" 
property int element: 2
    function evaluate(str) {      
    eval(str);                    
    }                             

}
    }
    NumberAnimation on opacity {
        from: 0
        to: 1
        loops: Animation.Infinite
    }
    layer.effect: Glow { source: Item { opacity: .5; Timer { interval: 20 
property int element: 3
    function evaluate(str) {      
    eval(str);                    
    }                             

} } }

property int element: 4
    function evaluate(str) {      
    eval(str);                    
    }                             

}
