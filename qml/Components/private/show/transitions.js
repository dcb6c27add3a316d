.pragma library
// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// The transitions between two slides, as functions from progress to placement.

/// Names of all transitions, as they are written in documents.
const names = ["cut", "fade", "slideLeft", "slideRight", "slideUp", "slideDown", "zoom", "wipe", "wipeDown", "cover",
               "stagger"];

/// `name` if there is such a transition, else the gentlest one.
function known(name) {
    return names.indexOf(name) >= 0 ? name : "fade";
}

/// Whether the incoming slide is drawn as one picture during the transition, so that its parts do not shine through
/// each other.
function isGrouped(name) {
    return ["fade", "zoom", "wipe", "wipeDown", "stagger"].indexOf(name) >= 0;
}

/// Where both slides stand at `progress` (0 to 1) of transition `name` in a frame of width x height. Members: x, y,
/// opacity, scale, reveal (share of the slide that a wipe has uncovered), down (whether the wipe runs downwards) and
/// front (opacity of what stands before the slide's pictures).
function placement(name, progress, width, height) {
    const result = { incoming: standing(), outgoing: standing() };
    const step = steps[name];
    if (step)
        step(result.incoming, result.outgoing, progress, width, height);
    return result;
}

/// Puts `slide` where `at`, one half of a placement, says.
function place(slide, at) {
    slide.x = at.x;
    slide.y = at.y;
    slide.opacity = at.opacity;
    slide.scale = at.scale;
    slide.reveal = at.reveal;
    slide.revealsDown = at.down;
    slide.front = at.front;
}

/// A slide's placement between transitions.
function standing() {
    return { x: 0, y: 0, opacity: 1, scale: 1, reveal: 1, down: false, front: 1 };
}

// What lies under a slide that fades in stays until it is covered, then goes: no dip to the background between two
// full pictures, no sudden end under a slide that has transparent places.
function coveredShare(progress) {
    return Math.min(1, progress / 0.6);
}
function leavingOpacity(progress) {
    return 1 - Math.max(0, (progress - 0.6) / 0.4);
}

function push(dx, dy) {
    return function(incoming, outgoing, progress, width, height) {
        incoming.x = -dx * width * (1 - progress);
        incoming.y = -dy * height * (1 - progress);
        outgoing.x = dx * width * progress;
        outgoing.y = dy * height * progress;
    };
}

function wipe(down) {
    return function(incoming, outgoing, progress) {
        incoming.reveal = coveredShare(progress);
        incoming.down = down;
        outgoing.opacity = leavingOpacity(progress);
    };
}

function fade(incoming, outgoing, progress) {
    incoming.opacity = coveredShare(progress);
    outgoing.opacity = leavingOpacity(progress);
}

// How far `progress` has come between `from` and `to`, 0 to 1.
function part(progress, from, to) {
    return Math.max(0, Math.min(1, (progress - from) / (to - from)));
}

const steps = {
    fade: fade,
    slideLeft: push(-1, 0),
    slideRight: push(1, 0),
    slideUp: push(0, -1),
    slideDown: push(0, 1),
    zoom: function(incoming, outgoing, progress) {
        incoming.opacity = coveredShare(progress);
        incoming.scale = 1.25 - 0.25 * progress;
        outgoing.opacity = leavingOpacity(progress);
    },
    wipe: wipe(false),
    wipeDown: wipe(true),
    cover: function(incoming, outgoing, progress, width) {
        incoming.x = width * (1 - progress);
        outgoing.x = -0.3 * width * progress;
    },
    // Texts leave, the picture changes, texts come: never two texts over each other. Progress is slow at both ends:
    // each of the three takes about a third of the time.
    stagger: function(incoming, outgoing, progress) {
        outgoing.front = 1 - part(progress, 0, 0.1);
        fade(incoming, outgoing, part(progress, 0.1, 0.9));
        incoming.front = part(progress, 0.9, 1);
    }
};
