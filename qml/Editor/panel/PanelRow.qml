// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// A row of a PanelForm for one property. What its control does goes through change(), which shows it at once, and
/// finish(), which writes it into the source.
BGUI.FormRow {
    id: root

    /// Name of the property, dotted for groups; empty in a row of controls that have names of their own.
    property string name
    /// The live value. It follows the item, whoever changes it.
    readonly property var value: form.revision > 0 ? form.value(name) : undefined
    /// Whether a change finishes by itself after a pause, as with keys that step a number.
    property bool finishesItself: false

    readonly property Item form: parent.form
    property string pending: ""

    /// Shows the source text `text` as the property's value.
    function change(text) {
        if (!form.preview(name, text))
            return;
        pending = text;
        if (finishesItself)
            pause.restart();
    }

    /// Ends a change, if there is one under way.
    function finish() {
        const text = pending;
        pause.stop();
        pending = "";
        if (text !== "" && form)
            form.commit(name, text);
    }

    size: form.size
    labelWidth: (form.radEditor ? 13 : 21) * BGUI.Theme.unit
    Component.onDestruction: finish()

    Timer {
        id: pause
        interval: 600
        onTriggered: root.finish()
    }
}
