pragma Singleton
import QtQuick 2.15
import QtQuick.Controls 2.15 as Controls
import "lib" as Lib
import "tools.js" as Tools

Controls.ApplicationWindow {
    anchors . fill : parent
    anchors
        .margins: 4
    Controls . Button { text: "dotted" }
    Lib.Panel.Inner { x: 1 }
    Component.Loader { x: 3; Item { } }
    Größe { x: 4 }
    Ωmega { x: 5 }
    Keys . onPressed : { }
    x: 1
    x: 2
    states.when : 3
}
