// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "cloud/http/transferthread.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QHash>
#include <QNetworkAccessManager>
#include <QNetworkProxyFactory>

#include <atomic>
#include <condition_variable>
#include <mutex>

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

// Somebody who waits for the transfer thread, in the main thread with a loop. Each handing over between the
// threads goes through here, which orders what they see.
class Waiter
{
public:
    explicit Waiter(QEventLoop* loop = nullptr)
        : m_loop(loop)
    {
    }

    QThread* thread() const { return m_thread; }

    void handOver() { const std::lock_guard lock(m_mutex); }

    void wake()
    {
        const std::lock_guard lock(m_mutex);
        m_awake = true;
        m_condition.notify_all();
        if (m_loop)
            QMetaObject::invokeMethod(m_loop, "quit", Qt::QueuedConnection);
    }

    bool isAwake()
    {
        const std::lock_guard lock(m_mutex);
        return m_awake;
    }

    void wait()
    {
        std::unique_lock lock(m_mutex);
        m_condition.wait(lock, [this] { return m_awake; });
    }

private:
    QThread* const m_thread = QThread::currentThread();
    QEventLoop* const m_loop;
    std::mutex m_mutex; // guards the rest
    std::condition_variable m_condition;
    bool m_awake = false;
};

} // namespace

void useLightEventLoops()
{
    qputenv("QT_NO_THREADED_GLIB", "1");
}

/// What lives in the thread: the manager and the tasks under way.
class TransferThread::Room : public QObject
{
public:
    void admit(TransferTask* task, const std::shared_ptr<Waiter>& waiter)
    {
        waiter->handOver();
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
        task->moveToThread(guest.waiter->thread());
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
}

TransferThread::~TransferThread()
{
    m_thread.quit();
    m_thread.wait();
}

void TransferThread::run(TransferTask& task)
{
    QEventLoop loop;
    const bool keepEventsGoing = onMainThread();
    const auto waiter = std::make_shared<Waiter>(keepEventsGoing ? &loop : nullptr);
    m_thread.start(QThread::HighestPriority); // does nothing when it runs
    task.moveToThread(&m_thread);
    waiter->handOver();
    QMetaObject::invokeMethod(m_room.get(),
                              [room = m_room.get(), task = &task, waiter] { room->admit(task, waiter); });
    if (keepEventsGoing) {
        loop.exec();
        if (!waiter->isAwake()) // the program quits
            cancel(task);
    }
    waiter->wait();
}

void TransferThread::cancel(TransferTask& task)
{
    if (!m_thread.isRunning())
        return;
    const auto waiter = std::make_shared<Waiter>();
    QMetaObject::invokeMethod(m_room.get(), [room = m_room.get(), task = &task, waiter] {
        room->cancel(task);
        waiter->wake();
    });
    waiter->wait();
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
