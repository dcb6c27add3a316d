// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/support/httpserver.h"

#include <QObject>

/// A real HTTP server on loopback for tests in QML; published as "server". GUI thread.
class NetworkFixture : public QObject
{
    Q_OBJECT

public:
    /// Answers `path` with `text`, written in the character set `charset`.
    Q_INVOKABLE void serve(const QString& path, const QString& text, const QString& contentType = {},
                           const QString& charset = QStringLiteral("UTF-8"));
    /// Answers `path` with a file of the test data.
    Q_INVOKABLE void serveFile(const QString& path, const QString& name);
    /// Answers `path` with a status and a reason; `headers` are lines with their ends.
    Q_INVOKABLE void serveStatus(const QString& path, int status, const QString& headers = {});
    /// Takes requests for `path` and never answers.
    Q_INVOKABLE void serveSilence(const QString& path);
    /// Answers `path` with `text` in `count` pieces, `pause` milliseconds apart.
    Q_INVOKABLE void serveSlowly(const QString& path, const QString& text, int count, int pause);
    /// Answers `path` with half of `text`, of which the whole length was announced, and hangs up.
    Q_INVOKABLE void serveCut(const QString& path, const QString& text);
    /// Answers `path` with `text` followed by `size` more bytes; their number is announced or not.
    Q_INVOKABLE void serveHuge(const QString& path, const QString& text, int size, bool isAnnounced);
    /// Answers `path` with a JPEG picture of one colour.
    Q_INVOKABLE void servePicture(const QString& path, const QString& color);
    /// URL of a path of the server.
    Q_INVOKABLE QString url(const QString& path) const { return m_server.url(path.toLatin1()); }
    /// How often `path`, with any query, was asked for.
    Q_INVOKABLE int count(const QString& path) const;
    /// The last request line's path that begins with `path`; "" when there was none.
    Q_INVOKABLE QString lastPath(const QString& path) const;
    /// Text of a file of the test data.
    Q_INVOKABLE QString data(const QString& name) const;

private:
    HttpServer m_server;
};
