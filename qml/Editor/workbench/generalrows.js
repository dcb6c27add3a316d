// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// The rows of the general panel: what there is to set about an item that brings no panel of its own.

const _pixels = { from: -20000, to: 20000, suffix: " px" };
const _length = { to: 20000, suffix: " px" };

const _alignments = [
    { text: qsTr("Left"), is: 1, code: "Text.AlignLeft" },
    { text: qsTr("Centre"), is: 4, code: "Text.AlignHCenter" },
    { text: qsTr("Right"), is: 2, code: "Text.AlignRight" },
    { text: qsTr("Both edges"), is: 8, code: "Text.AlignJustify" }
];

// What most items have, in this order, where the item has it.
const _known = [
    _row("LinesRow", "text", qsTr("Text")),
    _row("FileRow", "source", qsTr("File")),
    _row("FillModeRow", "fillMode", qsTr("Fill mode")),
    _row("ColorRow", "color", qsTr("Colour")),
    _row("FontRows", "font", ""),
    _row("ChoiceRow", "horizontalAlignment", qsTr("Alignment"), { choices: _alignments }),
    _row("NumberRow", "radius", qsTr("Corner radius"), _length),
    _row("NumberRow", "border.width", qsTr("Border"), _length),
    _row("ColorRow", "border.color", qsTr("Border colour")),
    _row("NumberRow", "spacing", qsTr("Spacing"), _pixels),
    _row("NumberRow", "hMargin", qsTr("Margin across"), _pixels),
    _row("NumberRow", "vMargin", qsTr("Margin down"), _pixels),
    _row("NumberRow", "columns", qsTr("Columns"), { from: 1, to: 100 })
];
const _page = [
    _row("NumberRow", "width", qsTr("Width"), _length),
    _row("NumberRow", "height", qsTr("Height"), _length)
];
const _shown = _row("CheckRow", "visible", qsTr("Visible"));
const _placed = ["x", "y", "width", "height", "opacity", "rotation", "visible"];

/// The rows for a live item: maps of "row", the type in the module of panels, and "properties", what it is made with.
/// Where the page stands and how large it shows is the canvas's matter.
function rows(item, record, isPage) {
    const known = _known.filter(row => _fits(row, item, record)).map(row => _ofKind(row, item));
    const names = known.map(row => row.properties.name).concat(_placed, ["id", "scale", "z"]);
    const own = Object.keys(record.properties).filter(name => names.indexOf(name) < 0 && !/^font\./.test(name))
                      .map(name => _rowFor(name, valueOf(item, name))).filter(row => row !== null);
    const place = isPage ? _page : [_shown, { row: "PlaceSection", properties: {} }];
    return known.concat(own, place);
}

function valueOf(item, name) {
    return name.split(".").reduce((at, part) => at === undefined || at === null ? undefined : at[part], item);
}

// A rectangle tells of a border that it has not as long as its source says nothing about it.
function _fits(row, item, record) {
    const name = row.properties.name;
    const isFor = { fillMode: item.paintedWidth !== undefined, horizontalAlignment: item.wrapMode !== undefined,
                    "border.width": _hasBorder(record), "border.color": _hasBorder(record) };
    return isFor[name] !== false && valueOf(item, name) !== undefined;
}

function _hasBorder(record) {
    return Object.keys(record.properties).some(name => name.startsWith("border."));
}

// A file is a picture's or a video's; other sources, such as a loader's, are texts.
function _ofKind(row, item) {
    if (row.properties.name !== "source")
        return row;
    const kind = item.paintedWidth !== undefined ? "picture" : item.playbackState !== undefined ? "video" : "";
    return kind === "" ? _row("TextRow", "source", row.properties.label)
                       : _row("FileRow", "source", row.properties.label, { kind: kind });
}

// The row for a property by its live value; null for what has no row.
function _rowFor(name, value) {
    if (typeof value === "number")
        return _row("NumberRow", name, name, { from: -20000, to: 20000, decimals: 2 });
    if (typeof value === "boolean")
        return _row("CheckRow", name, name);
    if (typeof value === "string")
        return _row("TextRow", name, name);
    return value && value.hsvHue !== undefined ? _row("ColorRow", name, name) : null;
}

function _row(row, name, label, more) {
    return { row: row, properties: Object.assign(label === "" ? { name: name } : { name: name, label: label }, more) };
}
