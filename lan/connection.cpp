// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "lan/connection.h"

#include "lan/host.h"
#include "lan/limits.h"
#include "lan/logging.h"
#include "lan/peerlog.h"
#include "lan/threadconnection.h"

#include <array>

#include <linux/sockios.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/ioctl.h>
#include <sys/socket.h>

namespace {

const QString unaskedText = QStringLiteral("nobody asked for it");

void setTcpOption(qintptr socket, int option, int value)
{
    ::setsockopt(int(socket), IPPROTO_TCP, option, &value, sizeof value);
}

// Bytes that the peer has not acknowledged yet.
int unacknowledgedBytes(qintptr socket)
{
    int bytes = 0;
    return ::ioctl(int(socket), SIOCOUTQ, &bytes) == 0 ? bytes : 0;
}

} // namespace

Connection::Connection(const QString& name, ThreadConnection* owner, QObject* parent)
    : QTcpSocket(parent)
    , m_name(name)
    , m_owner(owner)
    , m_baseDir(owner->host())
{
    setReadBufferSize(limits::socketBufferBytes);
    connect(this, &QTcpSocket::connected, this, &Connection::whenConnected);
    connect(this, &QTcpSocket::readyRead, this, &Connection::processReadyRead);
    connect(this, &QTcpSocket::bytesWritten, this, &Connection::processBytesWritten);
    connect(this, &QTcpSocket::errorOccurred, this, &Connection::whenConnectionError);
    connect(this, &QTcpSocket::disconnected, this, &Connection::whenDisconnected);
    m_retryTimer.setSingleShot(true);
    connect(&m_retryTimer, &QTimer::timeout, this, &Connection::processReadyRead);
    m_deadline.setSingleShot(true);
    connect(&m_deadline, &QTimer::timeout, this, &Connection::whenLate);
    m_watch.setInterval(limits::stallTick);
    connect(&m_watch, &QTimer::timeout, this, &Connection::checkProgress);
}

Connection::~Connection()
{
    disconnect(); // closing the socket would call the slots of what is no longer there
}

void Connection::begin(qintptr socketDescriptor)
{
    if (setSocketDescriptor(socketDescriptor))
        whenConnected();
    else
        drop(errorString());
}

void Connection::begin(const QHostAddress& address, quint16 port)
{
    m_deadline.start(limits::connectTime);
    connectToHost(address, port);
}

void Connection::sendFileToServer(QString localFilePath, QString serverFilePath)
{
    enqueue({{Frame::Kind::File, serverFilePath}, localFilePath});
}

void Connection::getFileFromServer(QString requestFile)
{
    ++m_openRequests;
    enqueue({{Frame::Kind::Request, requestFile}, {}});
}

// ------------------------------------------------------------------------------------------ coming, going

void Connection::whenConnected()
{
    m_isConnected = true;
    m_deadline.start(limits::helloTime);
    // Held back, the small write at the end of a file waits for an acknowledgement of what went before.
    setSocketOption(LowDelayOption, 1);
    // Without, a peer that was switched off stays connected for ever.
    setSocketOption(KeepAliveOption, 1);
    setTcpOption(socketDescriptor(), TCP_KEEPIDLE, limits::keepAliveIdle);
    setTcpOption(socketDescriptor(), TCP_KEEPINTVL, limits::keepAliveInterval);
    setTcpOption(socketDescriptor(), TCP_KEEPCNT, limits::keepAliveCount);
    enqueue({{Frame::Kind::Name, m_name}, {}});
}

void Connection::whenLate()
{
    if (m_isConnected)
        drop(QStringLiteral("it does not say its name"));
    else
        whenConnectionError(SocketTimeoutError);
}

void Connection::whenConnectionError(QAbstractSocket::SocketError)
{
    if (!m_isConnected && mayLog())
        qDebug() << this << "No conected";
    m_owner->quit();
}

void Connection::whenDisconnected()
{
    m_owner->quit();
}

void Connection::drop(const QString& reason)
{
    if (mayLog())
        qCWarning(lcLan).noquote() << "Connection to" << m_owner->hostAddress().toString()
                                   << "closed:" << reason;
    m_owner->end(reason);
    abort();
}

bool Connection::mayLog() const
{
    return m_owner->log().admits(m_owner->hostAddress());
}

void Connection::complain(const char* verb, const QString& path, const QString& fault)
{
    if (mayLog())
        qCWarning(lcLan) << qPrintable(m_owner->hostAddress().toString()) << verb
                         << path.left(limits::loggedPath) << '-' << qPrintable(fault);
}

// Something has moved.
void Connection::watch()
{
    m_hasMoved = true;
    if (!m_watch.isActive())
        m_watch.start();
}

void Connection::checkProgress()
{
    const int unsent = unacknowledgedBytes(socketDescriptor());
    const bool moved = m_hasMoved || unsent < m_unsentBytes;
    m_hasMoved = false;
    m_unsentBytes = unsent;
    m_stalledTicks = moved ? 0 : m_stalledTicks + 1;
    const bool isMoving = isSomethingOnTheWay();
    if (!isMoving && m_openRequests == 0)
        m_watch.stop();
    else if (m_stalledTicks * limits::stallTick >= (isMoving ? limits::stallTime : limits::answerTime))
        drop(QStringLiteral("it does not answer"));
}

bool Connection::isSomethingOnTheWay() const
{
    return m_receivingFile || m_reader.isInFrame() || m_writeState != WriteState::Idle || m_unsentBytes > 0;
}

// ------------------------------------------------------------------------------------------------ reading

void Connection::processReadyRead()
{
    watch();
    while (bytesAvailable() > 0) {
        m_isReadingPaused = m_waiting.size() >= limits::waitingFrames;
        if (m_isReadingPaused)
            return;
        if (!m_receivingFile)
            readIntoBuffer();
        if (m_receivingFile)
            readIncomingFile();
    }
    flush(); // what this has led to; it would wait for another turn of the event loop
}

void Connection::readIntoBuffer()
{
    switch (m_reader.feed(read(m_reader.missing()))) {
    case FrameReader::State::Incomplete:
        break;
    case FrameReader::State::Complete:
        take(m_reader.frame());
        break;
    case FrameReader::State::Broken:
        drop(QStringLiteral("it sends what is no frame"));
        break;
    }
}

void Connection::take(const Frame& frame)
{
    switch (frame.kind) {
    case Frame::Kind::Name:
        takeName(frame.text);
        break;
    case Frame::Kind::Request:
        answer(frame.text);
        break;
    case Frame::Kind::File:
        receive(frame);
        break;
    case Frame::Kind::Unknown:
        if (mayLog())
            qDebug() << m_name << "UNKNOW PROTOCOL";
        break;
    }
}

void Connection::takeName(const QString& name)
{
    if (!m_owner->peerName().isEmpty())
        return;
    m_deadline.stop();
    if (mayLog())
        qCInfo(lcLan).noquote() << "Connected to" << name << "at" << m_owner->hostAddress().toString();
    m_owner->setPeerName(name);
}

void Connection::answer(const QString& path)
{
    const QString fault = WorkFolder::faultForPeers(path);
    if (!fault.isEmpty())
        complain("asks for", path, fault);
    else if (const QString project = WorkFolder::projectOfMap(path); !project.isEmpty())
        m_pushedProject = project;
    enqueue({{Frame::Kind::File, answerTarget}, fault.isEmpty() ? path : QString()});
}

void Connection::receive(const Frame& frame)
{
    if (!m_baseDir.hasRoomFor(frame.size)) {
        drop(QStringLiteral("the disk here has no room for a file of %1 bytes").arg(frame.size));
        return;
    }
    if (m_missed.size() > limits::missedFiles) {
        drop(QStringLiteral("too many of its files cannot be kept"));
        return;
    }
    m_targetPath = frame.text;
    m_bytesToReceive = frame.size;
    m_incomingFile = m_targetPath == answerTarget ? fileForAnswer() : fileForPush();
    m_receivingFile = true;
}

std::unique_ptr<QTemporaryFile> Connection::fileForAnswer()
{
    if (m_openRequests == 0)
        complain("sends", m_targetPath, unaskedText);
    return m_owner->wantsAnswer() ? m_baseDir.newFile() : nullptr;
}

std::unique_ptr<QTemporaryFile> Connection::fileForPush()
{
    if (const QString fault = WorkFolder::faultForPeers(m_targetPath); !fault.isEmpty()) {
        complain("sends", m_targetPath, fault);
        return nullptr;
    }
    const bool isExpected = isPartOfPush(m_targetPath);
    auto file = isExpected ? m_baseDir.newFile() : nullptr;
    if (!file)
        loseIncoming(isExpected ? QStringLiteral("there is no place for it") : unaskedText);
    return file;
}

// Whoever sends a project asks for its map first; what is no project yet cannot suffer.
bool Connection::isPartOfPush(const QString& path) const
{
    const QString project = path.section(QLatin1Char('/'), 0, 0);
    return project == m_pushedProject || !m_baseDir.hasMap(project);
}

void Connection::readIncomingFile()
{
    std::array<char, limits::socketBufferBytes / 4> bytes;
    while (m_bytesToReceive > 0) {
        const qint64 count = read(bytes.data(), qMin(m_bytesToReceive, qint64(bytes.size())));
        if (count <= 0)
            return;
        m_bytesToReceive -= count;
        m_owner->countContent(count);
        if (m_incomingFile && m_incomingFile->write(bytes.data(), count) != count)
            loseIncoming(m_incomingFile->errorString());
    }
    finishIncoming();
}

// The rest of the content is thrown away, and so is what has come.
void Connection::loseIncoming(const QString& fault)
{
    complain("sends", m_targetPath, fault);
    m_incomingFile.reset();
    if (m_targetPath != answerTarget)
        m_missed.insert(m_targetPath);
}

void Connection::finishIncoming()
{
    m_receivingFile = false;
    if (m_targetPath == answerTarget)
        takeAnswer(m_incomingFile.get());
    else if (m_incomingFile)
        store(*m_incomingFile);
    m_incomingFile.reset();
}

void Connection::takeAnswer(QTemporaryFile* file)
{
    if (m_openRequests == 0)
        return;
    --m_openRequests;
    if (const std::optional<FileBatch::File> next = m_owner->nextToGet()) {
        getFileFromServer(next->remotePath);
        flush(); // the peer reads that file while this one is put in its place
    }
    m_owner->fileReceived(m_baseDir, file);
}

void Connection::store(QTemporaryFile& file)
{
    const QString project = WorkFolder::projectOfMap(m_targetPath);
    const Outcome stored = project.isEmpty() ? m_baseDir.put(file, m_targetPath) : storeMap(file, project);
    if (stored)
        m_missed.remove(m_targetPath);
    else
        loseIncoming(stored.reason());
}

// The map is the last file of an exchange.
Outcome Connection::storeMap(QTemporaryFile& file, const QString& project)
{
    const QString prefix = project + QLatin1Char('/');
    QSet<QString> missed;
    for (const QString& path : qAsConst(m_missed)) {
        if (path.startsWith(prefix))
            missed.insert(path.mid(prefix.size()));
    }
    m_pushedProject.clear();
    Outcome stored = m_baseDir.putMap(file, project, missed);
    if (!stored)
        return stored;
    if (mayLog())
        qCInfo(lcLan).noquote() << m_owner->hostAddress().toString() << "has sent the project" << project;
    m_owner->host().projectReceived(project);
    return stored;
}

// ------------------------------------------------------------------------------------------------ writing

void Connection::enqueue(const Outgoing& outgoing)
{
    m_waiting.enqueue(outgoing);
    startNext();
}

void Connection::startNext()
{
    while (m_writeState == WriteState::Idle && !m_waiting.isEmpty() && state() == ConnectedState)
        start(m_waiting.dequeue());
    if (m_isReadingPaused && m_waiting.size() < limits::waitingFrames)
        m_retryTimer.start(0);
}

void Connection::start(const Outgoing& outgoing)
{
    m_sending = outgoing;
    const bool isFile = m_sending.frame.kind == Frame::Kind::File;
    if (isFile && !openOutgoing())
        return;
    watch();
    m_writeState = isFile ? WriteState::Content : WriteState::Frame;
    write(encodeFrame(m_sending.frame));
    if (m_bytesToSend > 0)
        writeChunk(); // together with the frame: most files are small
}

// False when the file is not to be sent at all. A file that was asked for and cannot be had is sent empty.
bool Connection::openOutgoing()
{
    const Outcome opened = m_baseDir.openForReading(m_sending.localPath, m_outgoingFile);
    m_bytesToSend = opened ? m_outgoingFile.size() : 0;
    m_sending.frame.size = m_bytesToSend;
    if (opened)
        return true;
    if (!m_sending.localPath.isEmpty())
        complain("asks for", m_sending.localPath, opened.reason());
    if (m_sending.frame.text == answerTarget)
        return true;
    finishOutgoing(opened);
    return false;
}

void Connection::processBytesWritten(qint64)
{
    watch();
    if (bytesToWrite() > 0)
        return;
    if (m_writeState == WriteState::Frame)
        writeFromBuffer();
    else if (m_writeState == WriteState::Content)
        writeOutcomingFile();
}

// A frame without content is out.
void Connection::writeFromBuffer()
{
    m_writeState = WriteState::Idle;
    startNext();
}

// All content so far is out.
void Connection::writeOutcomingFile()
{
    if (m_bytesToSend > 0) {
        writeChunk();
        return;
    }
    finishOutgoing(Outcome::success());
    startNext();
}

void Connection::writeChunk()
{
    const QByteArray chunk = m_outgoingFile.read(qMin(limits::chunkBytes, m_bytesToSend));
    if (chunk.isEmpty()) {
        drop(QStringLiteral("a file that is being sent has become shorter"));
        return;
    }
    m_bytesToSend -= chunk.size();
    m_owner->countContent(chunk.size());
    write(chunk);
}

void Connection::finishOutgoing(const Outcome& outcome)
{
    m_writeState = WriteState::Idle;
    m_outgoingFile.close();
    if (m_sending.frame.text == answerTarget)
        return;
    if (const std::optional<FileBatch::File> next = m_owner->fileSent(outcome))
        m_waiting.enqueue({{Frame::Kind::File, next->remotePath}, next->localPath});
}
