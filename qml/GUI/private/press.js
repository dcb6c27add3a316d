// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
.pragma library

// Does what a click on the button does. For the keys that the templates leave out: they take Space, not Enter.
function press(button, event) {
    if (event.isAutoRepeat || button.busy)
        return;
    if (button.checkable && !(button.checked && button.autoExclusive)) {
        button.toggle();
        button.toggled();
    }
    button.clicked();
}
