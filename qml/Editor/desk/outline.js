.pragma library
// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// The objects of a document as the source nests them.
.import "../panel/values.js" as Values

/// The rows of an outline, in the order of the source: maps of "element", the object's number, "depth", 0 for the
/// root, "type", "id" and "name", the id or, without one, the text that it shows. Removed objects have none.
function rows(map) {
    const order = map.map((record, element) => ({ record, element })).filter(entry => _isThere(entry.record))
                     .sort((one, other) => one.record.pfirst - other.record.pfirst);
    const around = [];
    return order.map(({ record, element }) => {
        while (around.length > 0 && around[around.length - 1].plast <= record.pfirst)
            around.pop();
        around.push(record);
        return { element: element, depth: around.length - 1, type: record.typename, id: idOf(record),
                 name: idOf(record) || _textOf(record) };
    });
}

/// The rows whose type or name holds `text`, in any case, with the rows that these lie in.
function matching(rows, text) {
    const wanted = text.trim().toLowerCase();
    if (wanted === "")
        return rows;
    let depth = 0;
    return rows.slice().reverse().filter(row => {
        const isFound = (row.type + " " + row.name).toLowerCase().indexOf(wanted) >= 0;
        const isAround = row.depth < depth;
        if (isFound || isAround)
            depth = row.depth;
        return isFound || isAround;
    }).reverse();
}

function _textOf(record) {
    const text = record.properties.text || record.properties.title;
    const words = text ? Values.textIn(text.value.replace(/;$/, "")) : undefined;
    return words ? words.replace(/\s+/g, " ").slice(0, 40) : "";
}

function _isThere(record) {
    return record.plast > record.pfirst;
}

/// The object's id, which may stand in quotes; "" when it has none.
function idOf(record) {
    return record.properties.id ? record.properties.id.value.replace(/["']|\s*;$/g, "") : "";
}
