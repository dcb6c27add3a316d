// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "qmldoc/outline.h"

#include <QVariant>

/// A QML document as text: where its objects and their properties stand, and the text that the editor
/// instantiates.
///
/// Positions are 0-based offsets in UTF-16 code units, ends are exclusive. Not thread-safe; each document on
/// its own may live in any thread.
class QmlDocument
{
public:
    QmlDocument();
    Q_DISABLE_COPY(QmlDocument)

    /// Parses `source`, numbering its objects upward from `firstElement`. False when the text is no QML
    /// document or nests too deep (1365 objects): the objects are then still those of the last successful
    /// parse, and the generated text is `source` itself. `source` is referred to until the next call and must
    /// live as long; texts of values are read from it when the item map is made.
    bool parse(const QString& source, int firstElement);
    bool parse(QString&&, int) = delete;

    /// The last parsed text with the editor's members in each numbered object; see editorText(). Making an
    /// item map empties it.
    QString generatedText() const { return m_generatedText; }

    /// Number of objects of the last successful parse.
    int objectCount() const { return int(m_outline.items().size()); }

    /// The item map: the records of the numbered objects, innermost first, the root last; see itemRecord().
    QVariantList itemMap();

    /// Properties of object `i` of 0 to objectCount() - 1; see itemProperties().
    QVariantMap propertiesOfObject(int i);

private:
    QString m_generatedText;
    const QString* m_source;
    Outline m_outline; // of the last successful parse
};
