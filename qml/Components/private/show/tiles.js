.pragma library
// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Where the tiles of a grid stand.

/// Place of tile `index` of `count` in `rows` rows that fill width x height: rows of equal height, none with more than
/// one tile more than another, and no place empty.
function placeOf(index, count, rows, width, height, spacing) {
    const few = Math.floor(count / rows);
    const inLongRows = count % rows * (few + 1);
    const isLong = index < inLongRows;
    const across = isLong ? few + 1 : few;
    const column = (isLong ? index : index - inLongRows) % across;
    const row = isLong ? Math.floor(index / across) : count % rows + Math.floor((index - inLongRows) / across);
    const tileWidth = Math.max(0, (width - (across - 1) * spacing) / across);
    const tileHeight = Math.max(0, (height - (rows - 1) * spacing) / rows);
    return Qt.rect(column * (tileWidth + spacing), row * (tileHeight + spacing), tileWidth, tileHeight);
}
