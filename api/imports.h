// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>
#include <QQmlParserStatus>
#include <QStringList>

class ImportQueue;

/// The QML type "Imports" of "Nuvex.Native" 1.1: the imports of project archives of the CAPI that the
/// engine's context property of that name holds; without one it does nothing. All of its kind show the same
/// imports, which go on when a page that began one has gone.
class Imports : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    Q_PROPERTY(bool running READ isRunning NOTIFY runningChanged)
    Q_PROPERTY(double progress READ progress NOTIFY progressChanged)
    Q_PROPERTY(QString archive READ archive NOTIFY progressChanged)

public:
    /// Whether an archive is being imported, which one (a path), and how far it has come (0 to 1).
    bool isRunning() const;
    QString archive() const;
    double progress() const;

    /// Imports an archive, a path or a "file:" URL, after those begun before.
    Q_INVOKABLE void start(const QString& archive);
    /// Stops all imports.
    Q_INVOKABLE void cancel();

signals:
    void runningChanged();
    void progressChanged();
    /// As ImportQueue::finished().
    void finished(const QString& archive, const QString& error, const QStringList& projects, bool cancelled);

private:
    void classBegin() override;
    void componentComplete() override {}

    QPointer<ImportQueue> m_queue;
};
