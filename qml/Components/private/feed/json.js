.pragma library
// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

/// The value that `text` writes as JSON; null when it is none.
function parsed(text) {
    try {
        return JSON.parse(text);
    } catch (notJson) {
        return null;
    }
}
