pragma Singleton
import QtQuick 2.15
import QtQuick.Controls 2.15 as Controls
import "lib" as Lib
import "tools.js" as Tools

Controls.ApplicationWindow {
    anchors . fill : parent
    anchors
        .margins: 4
    Controls . Button { text: "dotted" 
property int element: 0
    function evaluate(str) {      
    eval(str);                    
    }                             

}
    Lib.Panel.Inner { x: 1 
property int element: 1
    function evaluate(str) {      
    eval(str);                    
    }                             

}
    Component.Loader { x: 3; Item { } }
    Größe { x: 4 
property int element: 2
    function evaluate(str) {      
    eval(str);                    
    }                             

}
    Ωmega { x: 5 
property int element: 3
    function evaluate(str) {      
    eval(str);                    
    }                             

}
    Keys . onPressed : { }
    x: 1
    x: 2
    states.when : 3

property int element: 4
    function evaluate(str) {      
    eval(str);                    
    }                             

}
