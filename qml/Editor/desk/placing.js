.pragma library
// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// What decides where an item of the document stands, in words.

/// Words for what places an item, as LiveDocument.placement() names it, or keeps it where it is.
const placers = {
    row: qsTr("Placed by its row: drag it to another turn"),
    column: qsTr("Placed by its column: drag it to another turn"),
    grid: qsTr("Placed by its grid: drag it to another turn"),
    flow: qsTr("Placed by its flow: drag it to another turn"),
    layout: qsTr("Placed by its layout: drag it to another turn"),
    list: qsTr("Placed by its list"),
    anchors: qsTr("Placed by anchors"),
    slideshow: qsTr("Placed by its slideshow"),
    lock: qsTr("Locked in the list of items")
};

/// The placement of an item that is neither moved nor resized; `by` is "" or one of the placers.
function fixedBy(by) {
    return { by: by, words: by === "" ? "" : placers[by], x: true, y: true, width: true, height: true };
}

/// The placement with what the item's record binds: values that are worked out are not overwritten by dragging.
/// Shape: "by", "words" ("" when the item can be dragged anywhere) and "x", "y", "width", "height", true for fixed.
function withBindings(placement, record) {
    const placing = Object.assign({}, placement);
    const bound = ["x", "y", "width", "height"].filter(name => isWorkedOut(record.properties[name]));
    bound.forEach(name => { placing[name] = true; });
    placing.words = placing.by !== "" ? placers[placing.by] : _wordsFor(bound, record);
    return placing;
}

function _wordsFor(bound, record) {
    const moved = bound.filter(name => name === "x" || name === "y");
    return moved.map(name => qsTr("%1 is worked out: %2").arg(name).arg(record.properties[name].value)).join("\n");
}

/// Whether the source of a property, its record or undefined, is anything but a number.
function isWorkedOut(property) {
    const isNumber = /^[-+]?[0-9.]+(?:e[-+]?[0-9]+)?;?$/i;
    return property !== undefined && property.value !== "" && !isNumber.test(property.value);
}
