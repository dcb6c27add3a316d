// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
.pragma library
//
// Quantities in words.

/// A size in bytes, such as "3.4 MB".
function size(bytes) {
    const units = [qsTr("bytes"), qsTr("kB"), qsTr("MB"), qsTr("GB"), qsTr("TB")];
    let power = 0;
    while (bytes >= 999.5 && power < units.length - 1) {
        bytes /= 1000;
        ++power;
    }
    return Number(bytes).toLocaleString(Qt.locale(), "f", power > 0 && bytes < 10 ? 1 : 0) + " " + units[power];
}

/// A time as RFC 3339 has it, in this computer's zone and way of writing; empty when it is not readable.
function time(text) {
    const moment = new Date(text);
    return isNaN(moment.getTime()) ? "" : Qt.formatDateTime(moment, Qt.DefaultLocaleShortDate);
}
