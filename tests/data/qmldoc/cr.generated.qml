import QtQuick 2.15Item {	width: 10 // c	height: // d20	Text { text: "a" 
property int element: 0
    function evaluate(str) {      
    eval(str);                    
    }                             

}	z: //   30
property int element: 1
    function evaluate(str) {      
    eval(str);                    
    }                             

}