import QtQuick 2.15

Item {
    id: board

    enum Mood { Calm, Busy = 4, Closed }

    signal opened
    signal moved(int x, string where);
    signal closed()

    property int count
    property int total;
    property string title: "Menu"
    property var list: [1, 2, 3]
    property alias caption: text.text
    readonly property real ratio: width / height
    default property alias content: holder.data
    required property int index
    required model
    property Item logo: Image { source: "logo.svg"; Rectangle { x: 1 
property int element: 0
    function evaluate(str) {      
    eval(str);                    
    }                             

} }
    property list<Item> extras: [ Item { x: 2 
property int element: 1
    function evaluate(str) {      
    eval(str);                    
    }                             

}, Text { text: "two" 
property int element: 2
    function evaluate(str) {      
    eval(str);                    
    }                             

} ]
    property QtObject none: null

    onOpened: count = 1
    function reset(value) { count = value || 0 }

    Text { id: text 
property int element: 3
    function evaluate(str) {      
    eval(str);                    
    }                             

}
    Item { id: holder 
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
