// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "qrc:/Nuvex/Components/private/presence.js" as Presence

/// Three instances of a component: in a landscape, a portrait and a large place, on a light, a dark and a middle ground.
Item {
    id: root

    // Makes the instances, with the item number that they have in the editor.
    function fill(component, element) {
        for (let i = 0; i < places.count; ++i) {
            const place = places.itemAt(i);
            component.createObject(place, { element: element, width: place.width, height: place.height });
        }
    }

    function items() {
        return [0, 1, 2].map(i => places.itemAt(i).children[0]);
    }

    function clear() {
        items().forEach(item => item.destroy());
    }

    function isSettled() {
        return Presence.isSettled(root);
    }

    width: 960
    height: 520

    // Particles begin as soon as their picture is there: at once, when it is there already.
    Image {
        visible: false
        source: "qrc:///Nuvex/Components/icons/particle.png"
    }

    Repeater {
        id: places
        model: [[0, 0, 320, 180, "white"], [70, 190, 180, 320, "#202a33"], [330, 0, 630, 354, "#8796a5"]]

        Rectangle {
            x: modelData[0]
            y: modelData[1]
            width: modelData[2]
            height: modelData[3]
            color: modelData[4]
            clip: true
        }
    }
}
