// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Keeps the last good answer of each address on disk, for the time without network, and for other items that show the
// same. Not a shared library: it needs the importing document's CAPI.
.import "limits.js" as Limits

// Raised when the shape of an answer changes: older files count as none.
const version = 1;

/// The kept answer of `address`: a map with "time" (milliseconds since 1970) and "answer"; null when there is none.
function recall(address) {
    try {
        const kept = JSON.parse(CAPI.readTextFile(_file(address)));
        return kept.version === version && kept.address === address && kept.answer ? kept : null;
    } catch (unreadable) {
        return null;
    }
}

/// Keeps `answer` as that of `address`, in place of an older one, and of another address's where the places are taken.
function keep(address, answer, time) {
    const kept = { version: version, address: address, time: time, answer: answer };
    CAPI.writeToFile(JSON.stringify(kept), _file(address));
}

// A fixed number of files beside the projects, so that they never grow without bound.
function _file(address) {
    const place = parseInt(Qt.md5(address).slice(0, 6), 16) % Limits.keptAnswers;
    return CAPI.getWorkDirectory() + "/../Feeds/" + place + ".json";
}
