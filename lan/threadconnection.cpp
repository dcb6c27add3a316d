// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "lan/threadconnection.h"

#include "lan/connection.h"
#include "lan/host.h"
#include "lan/peeraddress.h"
#include "lan/workfolder.h"

#include <utility>

namespace {

const QString endedText = QStringLiteral("the connection has ended");

} // namespace

ThreadConnection::ThreadConnection(LanHost& host, PeerLog& log, const QString& name, qintptr socketDescriptor,
                                   QObject* parent)
    : QThread(parent)
    , m_host(host)
    , m_log(log)
    , m_name(name)
    , m_hostAddress(peerOf(socketDescriptor))
    , m_socketDescriptor(socketDescriptor)
{
}

ThreadConnection::ThreadConnection(LanHost& host, PeerLog& log, const QString& name,
                                   const QHostAddress& address, quint16 port, QObject* parent)
    : QThread(parent)
    , m_host(host)
    , m_log(log)
    , m_name(name)
    , m_hostAddress(address)
    , m_port(port)
{
}

ThreadConnection::~ThreadConnection()
{
    quit();
    wait();
}

QString ThreadConnection::peerName() const
{
    const std::lock_guard lock(m_mutex);
    return m_peerName;
}

bool ThreadConnection::isPending() const
{
    const std::lock_guard lock(m_mutex);
    return !m_ended && m_peerName.isEmpty();
}

void ThreadConnection::setPeerName(const QString& name)
{
    {
        const std::lock_guard lock(m_mutex);
        m_peerName = name;
    }
    m_host.connectionStarted(name);
}

void ThreadConnection::end(const QString& reason)
{
    if (m_endReason.isEmpty())
        m_endReason = reason;
    quit();
}

Outcome ThreadConnection::sendFilesAndWait(const std::shared_ptr<FileBatch>& batch)
{
    if (const std::optional<FileBatch::File> first = batch->next()) {
        enqueue(m_sending, batch);
        emit signalSendFileToServer(first->localPath, first->remotePath);
    }
    return batch->wait();
}

Outcome ThreadConnection::getFilesAndWait(const std::shared_ptr<FileBatch>& batch)
{
    if (const std::optional<FileBatch::File> first = batch->next()) {
        enqueue(m_getting, batch);
        emit signalGetFileFromServer(first->remotePath);
    }
    return batch->wait();
}

std::optional<FileBatch::File> ThreadConnection::fileSent(const Outcome& outcome)
{
    std::optional<FileBatch::File> next = nextOf(m_sending);
    finishFirst(m_sending, outcome);
    return next;
}

bool ThreadConnection::wantsAnswer() const
{
    const std::lock_guard lock(m_mutex);
    return !m_getting.empty() && !m_getting.front()->hasEnded();
}

std::optional<FileBatch::File> ThreadConnection::nextToGet()
{
    return nextOf(m_getting);
}

void ThreadConnection::fileReceived(const WorkFolder& folder, QTemporaryFile* file)
{
    std::shared_ptr<FileBatch> batch;
    {
        const std::lock_guard lock(m_mutex);
        batch = m_getting.front();
    }
    Outcome outcome = Outcome::success(); // of what nobody waits for any more
    if (!batch->hasEnded())
        outcome = file ? folder.put(*file, batch->current().localPath)
                       : Outcome::failure(QStringLiteral("not received"));
    finishFirst(m_getting, outcome);
}

void ThreadConnection::run()
{
    {
        Connection connection(m_name, this);
        connect(this, &ThreadConnection::signalSendFileToServer, &connection, &Connection::sendFileToServer);
        connect(this, &ThreadConnection::signalGetFileFromServer, &connection,
                &Connection::getFileFromServer);
        if (isIncoming())
            connection.begin(m_socketDescriptor);
        else
            connection.begin(m_hostAddress, m_port);
        exec();
    }
    endBatches();
    emit connectionFinished();
}

void ThreadConnection::enqueue(Batches& batches, const std::shared_ptr<FileBatch>& batch)
{
    const std::lock_guard lock(m_mutex);
    if (m_ended)
        batch->end(endedText);
    else
        batches.push_back(batch);
}

std::optional<FileBatch::File> ThreadConnection::nextOf(Batches& batches)
{
    const std::lock_guard lock(m_mutex);
    return batches.front()->next();
}

void ThreadConnection::finishFirst(Batches& batches, const Outcome& outcome)
{
    const std::lock_guard lock(m_mutex);
    batches.front()->finish(outcome);
    if (!batches.front()->isUnderWay())
        batches.pop_front();
}

void ThreadConnection::endBatches()
{
    const std::lock_guard lock(m_mutex);
    m_ended = true;
    for (const Batches* batches : {&m_sending, &m_getting}) {
        for (const std::shared_ptr<FileBatch>& batch : *batches)
            batch->end(m_endReason.isEmpty() ? endedText : m_endReason);
    }
}
