// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QTcpServer>
#include <QThread>
#include <QVector>

#include <chrono>
#include <mutex>

/// What the server sends for one request: pieces of bytes, each after a pause, then the end.
struct HttpAnswer
{
    struct Piece
    {
        std::chrono::milliseconds pause;
        QByteArray bytes;
    };
    enum class End {
        StayOpen, ///< the connection stays as it is
        Close,    ///< closed once everything is sent
    };

    QVector<Piece> pieces;
    End end = End::StayOpen;
    bool early = false; ///< answer as soon as the request's head is there, and never read its body

    /// A complete answer with Content-Length. `headers` are further lines, each with its line end.
    static HttpAnswer complete(int status, const QByteArray& body = {}, const QByteArray& headers = {});
    /// No byte, ever.
    static HttpAnswer silence() { return {}; }
    /// The head and `body` in `count` equal pieces with a pause before each.
    static HttpAnswer drip(const QByteArray& body, int count, std::chrono::milliseconds pause);
    /// An answer that announces `body` and closes after `sent` bytes of it.
    static HttpAnswer cut(const QByteArray& body, int sent);
    /// These bytes as they are, then closed.
    static HttpAnswer raw(const QByteArray& bytes);
    /// The same answer, later.
    HttpAnswer after(std::chrono::milliseconds pause) const;
};

/// A request as it arrived.
struct HttpRequest
{
    QByteArray method;
    QByteArray path;
    QHash<QByteArray, QByteArray> headers; ///< names in lower case
    QByteArray body;
};

/// An HTTP server on 127.0.0.1 that answers each path as told. It runs in a thread of its own, so that tests
/// may block. All public members may be called from any thread.
class HttpServer
{
public:
    HttpServer();
    ~HttpServer();
    HttpServer(const HttpServer&) = delete;
    HttpServer& operator=(const HttpServer&) = delete;

    /// Sets the answer for a path, such as "/file"; other paths get status 404.
    void setAnswer(const QByteArray& path, const HttpAnswer& answer);
    /// URL of a path of this server.
    QString url(const QByteArray& path) const;
    /// The requests so far, in order of arrival.
    QVector<HttpRequest> requests() const;
    /// How many connections there have been.
    int connections() const;

private:
    class Connection;
    bool isEarly(const QByteArray& path) const;
    HttpAnswer accept(const HttpRequest& request);

    QThread m_thread;
    QTcpServer* m_server; // lives in the thread
    quint16 m_port = 0;
    mutable std::mutex m_mutex; // guards the members below
    QHash<QByteArray, HttpAnswer> m_answers;
    QVector<HttpRequest> m_requests;
    int m_connections = 0;
};
