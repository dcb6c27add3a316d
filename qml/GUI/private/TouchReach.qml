// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQml 2.15
import ".."

/// At the touch sizes a press beside a small control still counts as a press on it: the control's containment mask
/// reaches over its edges. Bound from here, as the templates' import does not offer that property.
Binding {
    id: root

    property Item control

    readonly property real dx: control ? Theme.reach(control.size, control.width) : 0
    readonly property real dy: control ? Theme.reach(control.size, control.height) : 0

    target: control
    property: "containmentMask"
    when: dx > 0 || dy > 0
    restoreMode: Binding.RestoreBindingOrValue
    value: QtObject {
        function contains(point: point) : bool {
            return point.x >= -root.dx && point.x <= root.control.width + root.dx
                    && point.y >= -root.dy && point.y <= root.control.height + root.dy;
        }
    }
}
