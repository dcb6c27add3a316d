// 😀 before
import QtQuick 2.15

Item {
    property string smile: "😀"
    property string größe: "ß"
    Text { text: "𝄞 clef" /* 𝄢 */; x: 5 
property int element: 0
    function evaluate(str) {      
    eval(str);                    
    }                             

}
    Text { text: "日本語" + '👩‍👩‍👧'; x: 6 
property int element: 1
    function evaluate(str) {      
    eval(str);                    
    }                             

}
    Text { text: `🎈${x}🎈` 
property int element: 2
    function evaluate(str) {      
    eval(str);                    
    }                             

}
    width: 7 // 😀

property int element: 3
    function evaluate(str) {      
    eval(str);                    
    }                             

}
