import QtQuick 2.15
import QtQuick.Layouts 1.15

GridLayout {
    columns: 2
    Keys.onEscapePressed: Qt.quit()
    Component.onCompleted: forceActiveFocus()

    Text {
        font { family: "Lobster"; pixelSize: 32 
property int element: 0
    function evaluate(str) {      
    eval(str);                    
    }                             

}
        font.bold: true
        Layout.fillWidth: true
        Layout.columnSpan: 2
        anchors.horizontalCenter: undefined
    
property int element: 1
    function evaluate(str) {      
    eval(str);                    
    }                             

}
    Rectangle {
        border.width: 1
        border.color: Qt.rgba(0, 0, 0, .5)
        layer { enabled: true; samples: 4 
property int element: 2
    function evaluate(str) {      
    eval(str);                    
    }                             

}
    
property int element: 3
    function evaluate(str) {      
    eval(str);                    
    }                             

}

property int element: 4
    function evaluate(str) {      
    eval(str);                    
    }                             

}
