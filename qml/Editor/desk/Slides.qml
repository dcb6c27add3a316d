// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// The slideshow in which one works: its slides, of which the one that is edited shows.
QtObject {
    id: root

    property var desk
    /// The slideshow that is selected, or that holds what is selected; null when there is none.
    readonly property Item show: showAround(desk.selection.item)
    /// Its slides in their order, and the one that is edited: the selected one, or the one that shows.
    readonly property var slides: show ? show.slides : []
    readonly property Item current: show ? slideAround(desk.selection.item) || show.currentSlide : null
    readonly property int place: slides.indexOf(current)

    function showAround(item) {
        for (let step = item; step; step = step.parent) {
            if (step.slides !== undefined && step.goTo !== undefined && desk.selection.isNumbered(step))
                return step;
        }
        return null;
    }

    // The slide of `show` that `item` is or lies in; null for the show itself.
    function slideAround(item) {
        for (let step = item; step && step !== show; step = step.parent) {
            if (step.parent === show && step.isSlide === true)
                return step;
        }
        return null;
    }

    // Lets each slideshow around the item show the slide that holds it.
    function reveal(item) {
        for (let step = item; step && step.parent; step = step.parent) {
            if (step.isSlide === true && step.parent.goTo !== undefined)
                step.parent.goTo(step.parent.slides.indexOf(step));
        }
    }

    // Selects the slide at a place of the show, or, where there is none, the show.
    function choose(index) {
        desk.selection.set([slides[index] || show]);
    }

    function add() {
        desk.insertion.add("Slide", show, 0, 0, {});
    }

    // Puts a copy of the current slide behind it.
    function duplicate() {
        const copy = place + 1;
        choose(place);
        desk.insertion.duplicate();
        choose(copy);
    }

    function remove() {
        const next = Math.min(place, slides.length - 2);
        choose(place);
        desk.insertion.remove();
        choose(next);
    }

    // Gives the current slide the turn after (1) or before (-1) its own.
    function shift(by) {
        const slide = current;
        const last = slides[slides.length - 1];
        const before = by < 0 ? slides[place - 1] : slides[place + 2] || desk.selection.nextBeside(last);
        choose(place);
        desk.arrangement.moveBefore(slide, before);
    }

    readonly property Connections following: Connections {
        target: root.desk.selection

        function onItemsChanged() {
            root.reveal(root.desk.selection.item);
        }
    }
}
