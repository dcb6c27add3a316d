// Item { x: 1 }
/* before */ import QtQuick 2.15 // after
/* Rectangle { */
Item /* type */ { // opened
    // width: 1
    width /* w */ : /* value */ 100 // hundred
    height: // below: next
        /* twice */ 200 /* end */
    property /* a */ int /* b */ count /* c */ : /* d */ 3 /* e */
    anchors /* g: */ . fill: parent
    property string url: "http://x" // "not this"
    /* } */
    Text { /**/ text: "/* text */" /* } */ } // child
    Rectangle {
        color: "red"
        // last
    }
    onXChanged: { /* : */ y = 1 // }
    }
    Item {/* inside */}
} /* after */
// end
