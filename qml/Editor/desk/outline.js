.pragma library
// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// The objects of a document as the source nests them.
.import "../panel/values.js" as Values

/// The rows of an outline, in the order of the source: maps of "element", the object's number, "parent", that of the
/// object around it (-1 for the root), "depth", 0 for the root, "type", "id" and "name", the id or, without one, the
/// text that it shows. Removed objects have none.
function rows(map) {
    const order = map.map((record, element) => ({ record, element })).filter(entry => _isThere(entry.record))
                     .sort((one, other) => one.record.pfirst - other.record.pfirst);
    const around = [];
    return order.map(({ record, element }) => {
        while (around.length > 0 && around[around.length - 1].record.plast <= record.pfirst)
            around.pop();
        const depth = around.length;
        around.push({ record, element });
        return { element: element, parent: depth > 0 ? around[depth - 1].element : -1, depth: depth,
                 type: record.typename, id: idOf(record), name: idOf(record) || _textOf(record) };
    });
}

/// Where an object goes that is dropped on the row of the object `element`, at that share of its height: a map of
/// "parent", "before", the object before which it goes (-1: behind all), and how that is shown: "edge", "upper",
/// "lower", or "" for all of the row, and "depth".
function dropPlace(rows, element, share) {
    const index = rows.findIndex(row => row.element === element);
    const row = rows[index];
    if (row.depth === 0 || (share > 0.3 && share < 0.7))
        return { parent: element, before: -1, edge: "", depth: row.depth + 1 };
    if (share <= 0.3)
        return { parent: row.parent, before: element, edge: "upper", depth: row.depth };
    const next = rows[index + 1];
    const isFollowed = next !== undefined && next.depth >= row.depth;
    const isInside = isFollowed && next.depth > row.depth;
    return { parent: isInside ? element : row.parent, before: isFollowed ? next.element : -1, edge: "lower",
             depth: isInside ? next.depth : row.depth };
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
