// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "lan/localserverfunctions.h"

#include <QObject>
#include <QThread>
#include <QTimer>

#include <memory>

class LocalServer;

/// Exchanges projects with players of the local network in the background, one at a time. GUI thread.
class ProjectExchange : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool running READ isRunning NOTIFY changed)
    Q_PROPERTY(bool sending READ isSending NOTIFY changed)
    Q_PROPERTY(QString player READ player NOTIFY changed)
    Q_PROPERTY(QString project READ project NOTIFY changed)
    Q_PROPERTY(int filesDone READ filesDone NOTIFY changed)
    Q_PROPERTY(int files READ files NOTIFY changed)
    Q_PROPERTY(qint64 bytes READ bytes NOTIFY changed)
    Q_PROPERTY(QString outcome READ outcome NOTIFY changed)
    Q_PROPERTY(bool succeeded READ hasSucceeded NOTIFY changed)

public:
    enum class Direction { Send, Fetch };

    explicit ProjectExchange(QObject* parent = nullptr);
    /// Cancels an exchange that is running and waits for its end.
    ~ProjectExchange() override;

    /// Begins to send or fetch a project, which is the name of a folder in the work directory. False when it
    /// does not begin, which outcome() explains unless an exchange is running. `server` may be null, and must
    /// outlive the exchange.
    bool start(const LocalServer* server, const QString& player, Direction direction, const QString& project);
    /// Ends the exchange soon.
    void cancel();

    /// Whether an exchange is running; what follows is of that one, or of the last one.
    bool isRunning() const { return m_thread != nullptr; }
    bool isSending() const { return m_direction == Direction::Send; }
    QString player() const { return m_player; }
    QString project() const { return m_project; }
    /// Files that are done, of those that differ; their number is 0 until it is known.
    int filesDone() const { return m_progress.filesDone; }
    int files() const { return m_progress.files; }
    /// Bytes of file content that came or went.
    qint64 bytes() const { return m_progress.bytes; }
    /// How it ended, a sentence for users; empty while it is running and before the first one.
    QString outcome() const { return m_outcome; }
    /// Whether everything that was to be moved was.
    bool hasSucceeded() const { return m_succeeded; }

signals:
    /// Anything above has changed; while an exchange is running, ten times a second.
    void changed();
    /// An exchange has ended, or was not begun for the reason in outcome().
    void finished();

private:
    void updateProgress();
    void finish();
    bool refuse(const QString& outcome);
    QString describe(const Outcome& outcome) const;

    std::shared_ptr<ThreadConnection> m_connection; // let go of here, not in the worker
    std::unique_ptr<LocalServerFunctions> m_functions;
    std::unique_ptr<QThread> m_thread;
    QTimer m_progressTimer;

    Direction m_direction = Direction::Send;
    QString m_player;
    QString m_project;
    LocalServerFunctions::Progress m_progress;
    Outcome m_result = Outcome::success(); // written by the worker, read after its end
    QString m_outcome;
    bool m_succeeded = false;
};
