.pragma library
// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Entries of menus and carousels: what a delegate gets from an array of objects, an array of texts or a list model.

/// The entry of a delegate whose context offers `model`.
function of(model) {
    return model.modelData !== undefined ? model.modelData : model;
}

/// Member `name` of `entry` as text; "" when there is none. A plain text stands for the member `main`.
function text(entry, name, main) {
    if (entry === undefined || entry === null)
        return "";
    if (typeof entry === "string" || typeof entry === "number")
        return name === main ? String(entry) : "";
    const value = entry[name];
    return value === undefined || value === null ? "" : String(value);
}

/// Number of entries of `model`, an array, a list model or a number.
function count(model) {
    if (!model)
        return 0;
    if (typeof model === "number")
        return Math.max(0, Math.floor(model));
    return model.count !== undefined ? model.count : model.length !== undefined ? model.length : 0;
}

/// Entry `index` of `model`; undefined beyond its end.
function at(model, index) {
    if (index < 0 || index >= count(model))
        return undefined;
    return model.get !== undefined ? model.get(index) : model[index];
}

/// The entries of `model` as an array, `most` of them at the most.
function list(model, most) {
    const entries = [];
    for (let i = 0; i < Math.min(most, count(model)); ++i)
        entries.push(at(model, i));
    return entries;
}
