import QtQuick 2.15

Item {
    width: 10
    Text { text: "bom" 
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
