// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtTest 1.15

ComponentCase {
    id: test
    name: "Effects"

    // How many points of a coarse grid over `item` are not of `color`.
    function drawn(item, color) {
        var frame = grabImage(item), sum = 0;
        for (var x = 2; x < item.width; x += 6) {
            for (var y = 2; y < item.height; y += 6)
                sum += String(frame.pixel(x, y)) !== color;
        }
        return sum;
    }

    function onBlack(text) {
        return make("Rectangle { width: 400; height: 300; color: 'black'; property Item item: children[0]; " + text + " }");
    }

    function test_particles_data() {
        return [
            { tag: "Particles", text: "Particles { anchors.fill: parent }", least: 20 },
            { tag: "Fireworks", text: "Fireworks { anchors.fill: parent; number: 4 }", least: 20 }
        ];
    }
    function test_particles(data) {
        var ground = onBlack(data.text);
        tryVerify(function() { return drawn(ground, "#000000") >= data.least; }, 10000);
        ground.item.visible = false;
        compare(drawn(ground, "#000000"), 0);
    }

    function test_particlesOfAbsentSlideRest() {
        var show = make("Slideshow { running: false; transTime: 0; Slide {} Slide { property alias dust: dust; "
                        + "Particles { id: dust } } }");
        var system = show.slides[1].dust.children[0];
        verify(!system.running);
        show.next();
        tryVerify(function() { return system.running; });
    }

    function test_effectsReachBeyondTheLetters_data() {
        return [
            { tag: "GlowText", text: "GlowText { text: 'I'; color: 'black'; glowColor: 'red'; x: 50; y: 50 }" },
            { tag: "ShadedText", text: "ShadedText { textItem.text: 'I'; textItem.color: 'black'; shadowItem.color: 'red'; x: 50; y: 50 }" }
        ];
    }
    function test_effectsReachBeyondTheLetters(data) {
        var ground = onBlack(data.text);
        tryVerify(function() { return drawn(ground, "#000000") > 10; });
    }

    function test_kenBurns() {
        fixture.makePicture("wide.png", "red", 800, 300);
        var ground = onBlack("KImage { anchors.fill: parent; kTime: 600; kScale0: 1; kScale1: 1.5; source: '"
                             + fixture.url("wide.png") + "' }");
        var image = ground.item;
        tryCompare(image, "status", Image.Ready);
        var turned = 0, last = 0, rising = true;
        while (turned < 2) {
            compare(drawn(ground, "#ff0000"), 0, "the ground shows at " + image.travelled);
            wait(5);
            if (image.travelled !== last && (image.travelled > last) !== rising) {
                rising = !rising;
                ++turned;
            }
            last = image.travelled;
        }
        image.kenburnsEnable = false;
        var still = image.travelled;
        wait(60);
        compare(image.travelled, still);
    }
}
