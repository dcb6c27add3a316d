// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QThread>

#include <memory>

class QNetworkAccessManager;

/// Work on the network that a TransferThread does for somebody.
///
/// A task belongs to whoever made it, has no parent, and is at home in the transfer thread while
/// TransferThread::run() waits for it, in its maker's thread before and after.
class TransferTask : public QObject
{
    Q_OBJECT

signals:
    /// The work is over; what has come of it can be read. Emitted once, in the transfer thread.
    void ended();

protected:
    friend class TransferThread;

    /// Begins the work. May emit ended() already.
    virtual void begin(QNetworkAccessManager& manager) = 0;
    /// Ends the work as cancelled unless it is over, and emits ended() before it returns.
    virtual void cancel() = 0;
};

/// Gives threads to come, Qt's own of each network manager among them, Unix's event loop in place of GLib's,
/// which makes a system call for each event that is posted to it: a download over TLS posts a thousand for a
/// MiB. The main thread's stays. To be called while the program has one thread.
void useLightEventLoops();

/// A thread with one network manager, so that connections are kept from one transfer to the next.
///
/// One thread at a time uses it, besides cancelAll().
class TransferThread
{
public:
    TransferThread();
    /// Nobody may be waiting in run().
    ~TransferThread();
    Q_DISABLE_COPY(TransferThread)

    /// Lets the thread do a task and returns when that has ended. The program's main thread waits in a nested
    /// event loop, so that its events go on; any other is blocked. When the program quits meanwhile, the task
    /// ends as cancelled.
    void run(TransferTask& task);

    /// Ends a task that run() waits for, from an event of the thread that waits; it may be destroyed then.
    /// Does nothing when the task is not under way.
    void cancel(TransferTask& task);

    /// Soon ends every task that is under way as cancelled. Any thread.
    void cancelAll();
    /// The same at once for every task that comes later. Any thread.
    void shutDown();

private:
    class Room;

    QThread m_thread;
    std::unique_ptr<Room> m_room; // lives in the thread, destroyed once that has ended
};
