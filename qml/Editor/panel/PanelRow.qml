// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI
import "../desk/expressions.js" as Expressions
import "values.js" as Values

/// A row of a PanelForm for one property. What its control does goes through change(), which shows it at once, and
/// finish(), which writes it into the source. A property that the document works out is marked, and left alone until
/// the user lets go of that.
BGUI.FormRow {
    id: root

    /// Name of the property, dotted for groups; empty in a row of controls that have names of their own.
    property string name
    /// The live value. It follows the item, whoever changes it.
    readonly property var value: form.revision > 0 ? form.value(name) : undefined
    /// Whether a change finishes by itself after a pause, as with keys that step a number.
    property bool finishesItself: false
    /// Whether what the document works out is kept from the control.
    property bool minds: true
    readonly property string written: form.revision > 0 ? form.source(name) : ""
    readonly property bool isBound: minds && written !== "" && !Expressions.isConstant(written)

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

    // Puts the present value in the place of what works it out.
    function release() {
        form.commit(name, Values.literal(value));
    }

    size: form.size
    controlEnabled: !isBound
    labelWidth: (form.radEditor ? 13 : 21) * BGUI.Theme.unit
    Component.onDestruction: finish()

    Loader {
        parent: root
        x: root.controlRect.x
        y: root.controlRect.y
        width: root.controlRect.width
        height: root.controlRect.height
        active: root.isBound
        sourceComponent: BoundMark {
            size: root.size
            code: root.written
            onReleased: root.release()
        }
    }

    Timer {
        id: pause
        interval: 600
        onTriggered: root.finish()
    }
}
