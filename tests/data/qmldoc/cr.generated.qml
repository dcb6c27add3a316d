import QtQuick 2.15Item {	width: 10 // c	Text { text: "a" 
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