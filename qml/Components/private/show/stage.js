.pragma library
// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// The places a slide can be in: in the middle, beside the frame, or away.
.import "../limits.js" as Limits
.import "../presence.js" as Presence
.import "transitions.js" as Transitions

/// `slide` alone in the middle.
function takeStage(slide) {
    Transitions.place(slide, Transitions.standing());
    slide.part = Presence.shown;
    slide.isGrouped = false;
    slide.z = 0;
    slide.visible = true;
}

/// `slide` to the right of the frame, where it loads and is drawn without being seen, ready for `transition`.
function waitBeside(slide, width, transition) {
    Transitions.place(slide, Transitions.standing());
    slide.x = width;
    slide.part = Math.max(slide.part, Presence.waiting);
    slide.isGrouped = Transitions.isGrouped(transition);
    slide.z = 1;
    slide.visible = true;
}

/// `slide` out of sight; it gives up what it holds unless `keeps`.
function leaveStage(slide, keeps) {
    slide.visible = false;
    slide.part = keeps ? Presence.shown : Presence.absent;
    slide.isGrouped = false;
    Transitions.place(slide, Transitions.standing());
}

/// Milliseconds from the start of a slide's transition to the start of the next one's.
function timeOf(slide, transitionTime) {
    const wanted = slide.duration > 0 ? slide.duration : Limits.slideDuration;
    return Math.max(wanted, Limits.shortestSlide + Math.max(0, transitionTime));
}
