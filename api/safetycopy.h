// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QThreadPool>
#include <QTimer>

/// The QML type "SafetyCopy" of "Nuvex.Native" 1.1: keeps a text that changes, in a file of the project, for
/// the case that the program ends before it is saved. The file is written in the background. GUI thread.
class SafetyCopy : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString path MEMBER m_path NOTIFY pathChanged)

public:
    SafetyCopy();

    /// Writes `text` to `path`, which CAPI resolves, within limits::safetyCopyDelay; a text that is kept
    /// meanwhile takes its place. Nothing is written that was kept last. A failure is logged.
    Q_INVOKABLE void keep(const QString& text);
    /// Writes what is not written yet, and waits until it is.
    Q_INVOKABLE void flush();
    /// Forgets what was kept, and removes the file.
    Q_INVOKABLE void remove();

signals:
    void pathChanged();

private:
    QString file() const;
    void write();

    QString m_path;
    QString m_text; // kept last; null when nothing is
    QTimer m_delay;
    QThreadPool m_writer; // one thread: the last text comes last
};
