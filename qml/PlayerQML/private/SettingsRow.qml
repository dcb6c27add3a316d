// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import Nuvex.GUI 1.0 as BGUI

/// A line of the settings.
BGUI.FormRow {
    labelWidth: 20 * BGUI.Theme.unit
}
