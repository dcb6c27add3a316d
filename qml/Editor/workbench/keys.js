.pragma library
// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// The page of keys.

const sheet = [
    { keys: qsTr("Click"), effect: qsTr("Selects what is on top; with Shift several") },
    { keys: qsTr("Right click"), effect: qsTr("Lists what lies there") },
    { keys: qsTr("Double click"), effect: qsTr("Edits a text in place, a list as a table") },
    { keys: qsTr("Drag"), effect: qsTr("Moves; from the ground, selects what the band touches") },
    { keys: qsTr("Ctrl while dragging"), effect: qsTr("Does not snap") },
    { keys: qsTr("Shift while dragging"), effect: qsTr("Moves straight; keeps the shape while resizing") },
    { keys: qsTr("Arrows"), effect: qsTr("Move by 1 px, with Shift by 10 px") },
    { keys: qsTr("Esc"), effect: qsTr("Selects what holds the item; ends a drag; leaves a text") },
    { keys: qsTr("Wheel"), effect: qsTr("Larger and smaller") },
    { keys: qsTr("Space + drag, middle button"), effect: qsTr("Moves the page") },
    { keys: "Ctrl+0", effect: qsTr("Shows the whole page") },
    { keys: "Ctrl+1", effect: qsTr("Shows it at 100 %") },
    { keys: "Ctrl+A", effect: qsTr("Selects all beside the item") },
    { keys: "Ctrl+C, Ctrl+X, Ctrl+V", effect: qsTr("Copy, cut, paste into the item") },
    { keys: "Ctrl+D", effect: qsTr("Duplicates beside") },
    { keys: "Del", effect: qsTr("Deletes") },
    { keys: "Ctrl+Up, Ctrl+Down", effect: qsTr("Forward, backward; with Shift to the front, to the back") },
    { keys: "Ctrl+Z, Ctrl+Y", effect: qsTr("Undo; Redo is the button beside Undo") },
    { keys: "F2, H, L", effect: qsTr("In the list of items: gives another id, hides, locks") },
    { keys: "F4", effect: qsTr("Shows and hides the source") },
    { keys: "Ctrl+S", effect: qsTr("Saves, also while you write") },
    { keys: "F5", effect: qsTr("Plays, also while you write; Esc comes back") },
    { keys: "?", effect: qsTr("This page") }
];
