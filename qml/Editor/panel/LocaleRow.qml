// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// The language of dates.
TextRow {
    name: "localeName"
    label: qsTr("Language")
    placeholderText: qsTr("the system's, or as de_DE")
}
