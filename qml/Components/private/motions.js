.pragma library
// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// The movements of an AnimatedItem: periodic functions from phase to pose.

/// Pose at `phase` (0 to 1, a round) of `motion` with `strength`, for an item of width x height: x and y (pixels),
/// angle (degrees in the plane), turn (degrees around the upright axis), scale, and whether the item hangs from its
/// upper edge. An unknown motion is none.
function pose(motion, phase, strength, width, height) {
    const result = { x: 0, y: 0, angle: 0, turn: 0, scale: 1, hangs: false };
    const move = moves[motion];
    if (move)
        move(result, phase, isFinite(strength) ? strength : 0, width, height);
    return result;
}

function wave(phase) {
    return Math.sin(2 * Math.PI * phase);
}

const moves = {
    float: function(pose, phase, strength, width, height) {
        pose.y = -wave(phase) * strength * height * 0.06;
    },
    sway: function(pose, phase, strength, width) {
        pose.x = wave(phase) * strength * width * 0.06;
    },
    swing: function(pose, phase, strength) {
        pose.angle = wave(phase) * strength * 6;
        pose.hangs = true;
    },
    pulse: function(pose, phase, strength) {
        pose.scale = Math.max(0, 1 + wave(phase) * strength * 0.05);
    },
    spin: function(pose, phase, strength) {
        pose.angle = 360 * phase * (strength < 0 ? -1 : 1);
    },
    turn: function(pose, phase, strength) {
        pose.turn = wave(phase) * strength * 30;
    },
    // A short shake, then a rest.
    shake: function(pose, phase, strength, width) {
        const fading = Math.max(0, 1 - phase * 4);
        pose.x = wave(phase * 16) * fading * strength * width * 0.03;
    }
};
