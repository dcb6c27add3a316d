// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

/// The QML type "TextFile" of "Nuvex.Native" 1.1: tells a page that shows a text file what to expect of it.
class TextFile : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString path MEMBER m_path NOTIFY pathChanged)
    Q_PROPERTY(bool isUtf8 READ isUtf8 NOTIFY pathChanged)
    Q_PROPERTY(bool isReadable READ isReadable NOTIFY pathChanged)

public:
    /// Whether the file at `path`, which CAPI resolves, is UTF-8 now. Text of one that is not shows
    /// replacement characters; CAPI.writeToFile() keeps the original beside it.
    bool isUtf8() const;
    /// Whether CAPI.readTextFile() gives the file's text now; of one that is too large, or that this user may
    /// not read, it gives none.
    bool isReadable() const;

signals:
    void pathChanged();

private:
    QString m_path;
};
