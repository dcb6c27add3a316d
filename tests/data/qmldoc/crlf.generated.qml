import QtQuick 2.15

Item {
    width: 10
    height: 20;
    // comment
    property string text: "a" +
        "b"
    /* two
       lines */
    Text {
        text: `line
break`
    
property int element: 0
    function evaluate(str) {      
    eval(str);                    
    }                             

}
    onWidthChanged: {
        height = 1
    }

property int element: 1
    function evaluate(str) {      
    eval(str);                    
    }                             

}
