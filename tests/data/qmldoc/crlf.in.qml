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
    }
    onWidthChanged: {
        height = 1
    }
}
