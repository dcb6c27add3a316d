// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "cloud/http/transferthread.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QHash>
#include <QNetworkAccessManager>
#include <QNetworkProxyFactory>
#include <QSemaphore>

#include <atomic>

namespace {

bool onMainThread()
{
    return QCoreApplication::instance() && QThread::currentThread() == QCoreApplication::instance()->thread();
}

// For a plain connection that surely has no proxy the manager takes a socket without a buffer, which costs a
// system call for each byte of an answer's head. One that finds out by itself that there is none has a
// buffer.
class BufferedSockets : public QNetworkProxyFactory
{
    QList<QNetworkProxy> queryProxy(const QNetworkProxyQuery& query) override
    {
        QList<QNetworkProxy> proxies = proxyForQuery(query);
        for (QNetworkProxy& proxy : proxies) {
            if (proxy.type() == QNetworkProxy::NoProxy)
                proxy.setType(QNetworkProxy::DefaultProxy);
        }
        return proxies;
    }
};

// Somebody who waits for a task, in the main thread with a loop.
struct Waiter
{
    QSemaphore ended;
    QEventLoop* loop = nullptr;
    QThread* thread = QThread::currentThread();

    void wake()
    {
        if (loop)
            QMetaObject::invokeMethod(loop, "quit", Qt::QueuedConnection);
        ended.release();
    }
};

} // namespace

/// What lives in the thread: the manager and the tasks under way.
class TransferThread::Room : public QObject
{
public:
    void admit(TransferTask* task, const std::shared_ptr<Waiter>& waiter)
    {
        const int ticket = ++m_lastTicket;
        m_guests.insert(task, {ticket, waiter});
        // Queued, so that nothing of the task is on the stack any more when its maker may destroy it. The
        // ticket tells a task from a later one at the same address.
        connect(
            task, &TransferTask::ended, this,
            [this, task, ticket] {
                if (m_guests.value(task).ticket == ticket)
                    dismiss(task);
            },
            Qt::QueuedConnection);
        task->begin(manager());
        if (m_shutDown)
            cancel(task);
    }

    void cancel(TransferTask* task)
    {
        if (!m_guests.contains(task))
            return;
        task->cancel();
        dismiss(task);
    }

    void cancelAll()
    {
        const QList<TransferTask*> tasks = m_guests.keys();
        for (TransferTask* task : tasks)
            cancel(task);
    }

    void shutDown() { m_shutDown = true; }
    void closeConnections() { m_manager.reset(); }

private:
    struct Guest
    {
        int ticket = 0;
        std::shared_ptr<Waiter> waiter;
    };

    QNetworkAccessManager& manager()
    {
        if (!m_manager) {
            m_manager = std::make_unique<QNetworkAccessManager>();
            m_manager->setProxyFactory(new BufferedSockets); // the manager owns it
        }
        return *m_manager;
    }

    void dismiss(TransferTask* task)
    {
        const Guest guest = m_guests.take(task);
        task->disconnect(this);
        task->moveToThread(guest.waiter->thread);
        guest.waiter->wake();
    }

    std::unique_ptr<QNetworkAccessManager> m_manager;
    QHash<TransferTask*, Guest> m_guests;
    int m_lastTicket = 0;
    std::atomic_bool m_shutDown{false};
};

TransferThread::TransferThread()
    : m_room(std::make_unique<Room>())
{
    m_room->moveToThread(&m_thread);
    QObject::connect(
        &m_thread, &QThread::finished, m_room.get(), [room = m_room.get()] { room->closeConnections(); },
        Qt::DirectConnection);
    m_thread.start(QThread::HighestPriority);
}

TransferThread::~TransferThread()
{
    m_thread.quit();
    m_thread.wait();
}

void TransferThread::run(TransferTask& task)
{
    const auto waiter = std::make_shared<Waiter>();
    QEventLoop loop;
    const bool inMainThread = onMainThread();
    if (inMainThread)
        waiter->loop = &loop;
    task.moveToThread(&m_thread);
    QMetaObject::invokeMethod(m_room.get(),
                              [room = m_room.get(), task = &task, waiter] { room->admit(task, waiter); });
    if (inMainThread) {
        loop.exec();
        if (waiter->ended.available() == 0) // the program quits
            cancel(task);
    }
    waiter->ended.acquire();
}

void TransferThread::cancel(TransferTask& task)
{
    QMetaObject::invokeMethod(
        m_room.get(), [room = m_room.get(), task = &task] { room->cancel(task); },
        Qt::BlockingQueuedConnection);
}

void TransferThread::cancelAll()
{
    QMetaObject::invokeMethod(m_room.get(), [room = m_room.get()] { room->cancelAll(); });
}

void TransferThread::shutDown()
{
    m_room->shutDown();
    cancelAll();
}
