import QtQuick 2.15

Item {
    property string hello: `dear ${name}, ${[1, 2].map(n => `<${n}>`).join("")} }`
    property string name: 'x "y" \'z\''
    property var plural: /s$|{[}"]/gi
    property var half: 4 / 2 / 1
    property var add: (a, b) => a + b
    property var twice: a => { return { value: 2 * a } }
    property var pick: (({ a }) => a)
    property var old: function (a) { return a }
    property var map: ({ "a": 1, 'b': { c: [] } })
    property bool ready: a ? b : c
    property string path: "C:\\" +
                          "data"

    onNameChanged: {
        if (name === "}") {
            ready = false;
        }
    }
    onReadyChanged: if (ready) { name = "a" } else name = "b"
    onHelloChanged: switch (hello) { case "a": break; default: name = "" }
    onXChanged: try { name = x } catch (e) { console.log(e) } finally { }
    onYChanged: (function () { name = y })()
    onZChanged: value => name = value
    onWidthChanged: (w) => { name = w }
    onHeightChanged: for_ = 1, name = height

    function url(file) {
        return "file://" + file; // }
    }
    Timer { onTriggered: parent.x++ }
}
