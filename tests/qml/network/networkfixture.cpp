// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "networkfixture.h"

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QTextCodec>

#include <algorithm>

namespace {

QByteArray fileBytes(const QString& name)
{
    QFile file(QStringLiteral(NUVEX_TEST_DATA "/feeds/") + name);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no test data %s", qPrintable(name));
    return file.readAll();
}

QByteArray typeLine(const QString& contentType)
{
    return contentType.isEmpty() ? QByteArray() : "Content-Type: " + contentType.toLatin1() + "\r\n";
}

} // namespace

void NetworkFixture::serve(const QString& path, const QString& text, const QString& contentType,
                           const QString& charset)
{
    const QByteArray body = QTextCodec::codecForName(charset.toLatin1())->fromUnicode(text);
    m_server.setAnswer(path.toLatin1(), HttpAnswer::complete(200, body, typeLine(contentType)));
}

void NetworkFixture::serveFile(const QString& path, const QString& name)
{
    m_server.setAnswer(path.toLatin1(), HttpAnswer::complete(200, fileBytes(name)));
}

void NetworkFixture::serveStatus(const QString& path, int status, const QString& headers)
{
    const QByteArray body = status == 204 ? "" : "{\"reason\": \"told\"}";
    m_server.setAnswer(path.toLatin1(), HttpAnswer::complete(status, body, headers.toLatin1()));
}

void NetworkFixture::serveSilence(const QString& path)
{
    m_server.setAnswer(path.toLatin1(), HttpAnswer::silence());
}

void NetworkFixture::serveSlowly(const QString& path, const QString& text, int count, int pause)
{
    m_server.setAnswer(path.toLatin1(),
                       HttpAnswer::drip(text.toUtf8(), count, std::chrono::milliseconds(pause)));
}

void NetworkFixture::serveCut(const QString& path, const QString& text)
{
    const QByteArray body = text.toUtf8();
    m_server.setAnswer(path.toLatin1(), HttpAnswer::cut(body, body.size() / 2));
}

void NetworkFixture::serveHuge(const QString& path, const QString& text, int size, bool isAnnounced)
{
    const QByteArray body = text.toUtf8() + QByteArray(size, ' ');
    m_server.setAnswer(path.toLatin1(), isAnnounced ? HttpAnswer::complete(200, body)
                                                    : HttpAnswer::raw("HTTP/1.1 200 OK\r\n\r\n" + body));
}

void NetworkFixture::servePicture(const QString& path, const QString& color)
{
    QImage picture(64, 64, QImage::Format_RGB32);
    picture.fill(QColor(color));
    QBuffer bytes;
    picture.save(&bytes, "JPG", 95);
    m_server.setAnswer(path.toLatin1(),
                       HttpAnswer::complete(200, bytes.data(), "Content-Type: image/jpeg\r\n"));
}

int NetworkFixture::count(const QString& path) const
{
    const QVector<HttpRequest> all = m_server.requests();
    return int(std::count_if(all.cbegin(), all.cend(), [&](const HttpRequest& request) {
        return request.path.split('?').constFirst() == path.toLatin1();
    }));
}

QString NetworkFixture::lastPath(const QString& path) const
{
    QString last;
    for (const HttpRequest& request : m_server.requests()) {
        if (request.path.startsWith(path.toLatin1()))
            last = QString::fromLatin1(request.path);
    }
    return last;
}

QString NetworkFixture::data(const QString& name) const
{
    return QString::fromUtf8(fileBytes(name));
}
