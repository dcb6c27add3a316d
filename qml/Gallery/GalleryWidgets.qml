// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// Every widget in every state.
SheetColumns {
    id: root

    GalleryButtons {}
    GalleryChoices {}
    GalleryFields {}
    GalleryMessages {}
    GallerySource {}
    GalleryLists {}
    GalleryPictures {}
    GalleryColors {}
    GalleryScale {}
    GalleryFiles {}
    GalleryIcons {}
}
