Item {
    function each(list, fn) {
        for (var i = 0; i < list.length; ++i)
            if (fn(list[i], i) === false) { break } else continue;
        return typeof list !== 'undefined' && list instanceof Array;
    }
    property var pattern: /^[a-z]+\/(\d{2,})$/gi
    property real ratio: width / height
    property real half: (width / 2) / height
    property string quoted: "say \"hi\" to 'them'"
    property string tricky: "ends with a backslash \\"; property int after: 1
    property string template: `two ${1 + 1} "parts"`
    property int hex: 0xFF + 1e3 + .5 + 1.25
    property var keys: Object.keys({a: 1, "b": [2, 3]}) // the object's own
    property var text2: String(Math.PI).substr(0, 4), int2: parseInt("42")
    /* a comment over
       three lines: "no string", { no bracket }
       and its end */ property bool done: true
    /**/ property int p: 1 /*/ still inside */ ; /* one */ /* two */
    onClicked: switch (event.key) { case Qt.Key_Up: Math.max(1, NaN); default: this.close() }
    x: a // b /* not opened
    y: 5*/ 2
}
