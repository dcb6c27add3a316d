// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "tests/support/httpserver.h"

#include <QTcpSocket>
#include <QTimer>

using namespace std::chrono_literals;

namespace {

QByteArray head(int status, const QByteArray& headers)
{
    return "HTTP/1.1 " + QByteArray::number(status) + " Status\r\n" + headers + "\r\n";
}

QByteArray lengthOf(const QByteArray& body)
{
    return "Content-Length: " + QByteArray::number(body.size()) + "\r\n";
}

HttpRequest parseHead(const QByteArray& bytes)
{
    HttpRequest request;
    const QList<QByteArray> lines = bytes.split('\n');
    const QList<QByteArray> first = lines.constFirst().split(' ');
    request.method = first.value(0);
    request.path = first.value(1);
    for (const QByteArray& line : lines.mid(1)) {
        const int colon = line.indexOf(':');
        request.headers.insert(line.left(colon).toLower(), line.mid(colon + 1).trimmed());
    }
    return request;
}

} // namespace

HttpAnswer HttpAnswer::complete(int status, const QByteArray& body, const QByteArray& headers)
{
    return {{{0ms, head(status, lengthOf(body) + headers) + body}}};
}

HttpAnswer HttpAnswer::drip(const QByteArray& body, int count, std::chrono::milliseconds pause)
{
    HttpAnswer answer{{{0ms, head(200, lengthOf(body))}}};
    const int size = body.size() / count;
    for (int i = 0; i < count; ++i)
        answer.pieces.append({pause, i + 1 < count ? body.mid(i * size, size) : body.mid(i * size)});
    return answer;
}

HttpAnswer HttpAnswer::cut(const QByteArray& body, int sent)
{
    return {{{0ms, head(200, lengthOf(body)) + body.left(sent)}}, End::Close};
}

HttpAnswer HttpAnswer::raw(const QByteArray& bytes)
{
    return {{{0ms, bytes}}, End::Close};
}

HttpAnswer HttpAnswer::after(std::chrono::milliseconds pause) const
{
    HttpAnswer later = *this;
    later.pieces.first().pause += pause;
    return later;
}

/// Reads requests from one socket and plays their answers; deleted with the socket.
class HttpServer::Connection : public QObject
{
public:
    Connection(HttpServer* server, QTcpSocket* socket)
        : QObject(socket)
        , m_server(server)
        , m_socket(socket)
    {
        connect(socket, &QTcpSocket::readyRead, this, [this] { read(); });
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    }

private:
    void read()
    {
        if (m_ignoreRest)
            return;
        m_input += m_socket->readAll();
        const int end = m_input.indexOf("\r\n\r\n");
        if (end < 0)
            return;
        HttpRequest request = parseHead(m_input.left(end));
        const int length = request.headers.value("content-length").toInt();
        const bool whole = m_input.size() >= end + 4 + length;
        if (!whole && !m_server->isEarly(request.path))
            return;
        m_ignoreRest = !whole;
        request.body = m_input.mid(end + 4, length);
        m_input.remove(0, end + 4 + length);
        play(m_server->accept(request));
    }

    void play(HttpAnswer answer)
    {
        if (answer.pieces.isEmpty()) {
            if (answer.end == HttpAnswer::End::Close)
                m_socket->disconnectFromHost();
            return;
        }
        const HttpAnswer::Piece piece = answer.pieces.takeFirst();
        QTimer::singleShot(piece.pause, this, [this, piece, answer] {
            m_socket->write(piece.bytes);
            play(answer);
        });
    }

    HttpServer* m_server;
    QTcpSocket* m_socket;
    QByteArray m_input;
    bool m_ignoreRest = false;
};

HttpServer::HttpServer()
    : m_server(new QTcpServer)
{
    m_server->listen(QHostAddress::LocalHost);
    m_port = m_server->serverPort();
    QObject::connect(m_server, &QTcpServer::newConnection, m_server, [this] {
        while (QTcpSocket* socket = m_server->nextPendingConnection()) {
            const std::lock_guard lock(m_mutex);
            ++m_connections;
            new Connection(this, socket);
        }
    });
    QObject::connect(&m_thread, &QThread::finished, m_server, &QObject::deleteLater);
    m_server->moveToThread(&m_thread);
    m_thread.start();
}

HttpServer::~HttpServer()
{
    m_thread.quit();
    m_thread.wait();
    // The thread sanitizer does not see that Qt's wait orders what the threads did.
    const std::lock_guard lock(m_mutex);
}

void HttpServer::setAnswer(const QByteArray& path, const HttpAnswer& answer)
{
    const std::lock_guard lock(m_mutex);
    m_answers.insert(path, answer);
}

QString HttpServer::url(const QByteArray& path) const
{
    return QStringLiteral("http://127.0.0.1:%1%2").arg(m_port).arg(QString::fromLatin1(path));
}

QVector<HttpRequest> HttpServer::requests() const
{
    const std::lock_guard lock(m_mutex);
    return m_requests;
}

int HttpServer::connections() const
{
    const std::lock_guard lock(m_mutex);
    return m_connections;
}

bool HttpServer::isEarly(const QByteArray& path) const
{
    const std::lock_guard lock(m_mutex);
    return m_answers.value(path).early;
}

HttpAnswer HttpServer::accept(const HttpRequest& request)
{
    const std::lock_guard lock(m_mutex);
    m_requests.append(request);
    return m_answers.value(request.path, HttpAnswer::complete(404));
}
