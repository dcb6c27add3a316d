// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import ".."
import "format.js" as Format

/// A folder or file in a list of a folder: name, and where the width allows, size and date.
ListRow {
    id: root

    text: fileName
    elide: Text.ElideMiddle
    faIcon: fileIsDir ? "fa-folder" : "fa-file-o"
    iconColor: fileIsDir ? Theme.accent : Theme.mutedInk
    focusPolicy: Qt.NoFocus
    // The list gives its current row the focus; the keys are the list's.
    Keys.enabled: false

    Label {
        width: 10 * Theme.unit
        visible: !fileIsDir && root.width > 45 * Theme.unit
        text: Format.bytes(fileSize)
        muted: true
        horizontalAlignment: Text.AlignRight
    }

    Label {
        width: 18 * Theme.unit
        visible: root.width > 70 * Theme.unit
        text: Qt.formatDateTime(fileModified, Qt.DefaultLocaleShortDate)
        muted: true
        horizontalAlignment: Text.AlignRight
    }
}
