// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// Creates and destroys objects of each kind, some at a time, and logs "made NAME COUNT" when the last ones are gone;
/// at last "done". Rests for a while before and after, and logs "rest begins" and "rest ends".
Item {
    id: root

    /// Maps with the members name, text (of the object), total and atATime.
    property var kinds: []
    property string imports: "import QtQuick 2.15"
    property int rest: 4000
    property int kind: -1
    property int made: 0
    property var alive: []
    property Component factory
    readonly property var steps: [create, idle, destroyAll, collect, tell]
    property int step: 0

    function nextKind() {
        kind += 1;
        made = 0;
        step = 0;
        if (factory)
            factory.destroy();
        factory = null;
        if (kind === kinds.length)
            return finish();
        factory = Qt.createQmlObject(imports + "\nComponent { " + kinds[kind].text + " }", root, kinds[kind].name);
    }

    function create() {
        for (let i = 0; i < kinds[kind].atATime; ++i)
            alive.push(factory.createObject(root));
        made += alive.length;
    }

    // They live for some frames.
    function idle() {
    }

    function destroyAll() {
        alive.forEach(object => object.destroy());
        alive = [];
    }

    function collect() {
        gc();
    }

    function tell() {
        console.info("made " + kinds[kind].name + " " + made);
        if (made >= kinds[kind].total)
            nextKind();
    }

    function goOn() {
        const now = steps[step];
        step = (step + 1) % steps.length;
        now();
    }

    function finish() {
        clock.stop();
        console.info("rest begins");
        end.start();
    }

    width: 320
    height: 180
    Component.onCompleted: console.info("rest begins")

    Timer {
        interval: root.rest
        running: true
        onTriggered: {
            console.info("rest ends");
            root.nextKind();
            clock.start();
        }
    }

    Timer {
        id: clock
        interval: 20
        repeat: true
        onTriggered: root.goOn()
    }

    Timer {
        id: end
        interval: root.rest
        onTriggered: {
            console.info("rest ends");
            console.info("done");
        }
    }
}
