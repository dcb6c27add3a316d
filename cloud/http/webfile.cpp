// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "cloud/http/webfile.h"

#include <QPointer>

Webfile::Webfile(const QString& url, const Headers& headers, QObject* parent)
    : QObject(parent)
    , m_url(url, QUrl::TolerantMode)
    , m_headers(headers)
    , m_ownThread(std::make_unique<TransferThread>())
    , m_thread(*m_ownThread)
{
}

Webfile::Webfile(TransferThread& thread, const QString& url, const Headers& headers)
    : m_url(url, QUrl::TolerantMode)
    , m_headers(headers)
    , m_thread(thread)
{
}

Webfile::~Webfile()
{
    if (m_transfer)
        m_thread.cancel(*m_transfer);
}

bool Webfile::post(QIODevice* body)
{
    return run(Transfer::Method::Post, body);
}

bool Webfile::get(QIODevice* destination)
{
    return run(Transfer::Method::Get, destination);
}

quint64 Webfile::contentLength() const
{
    return httpStatus() == 0 ? 0 : reply()->header(QNetworkRequest::ContentLengthHeader).toULongLong();
}

bool Webfile::run(Transfer::Method method, QIODevice* device)
{
    m_transfer = std::make_unique<Transfer>(method, m_url, m_headers, device);
    connect(m_transfer.get(), &Transfer::progress, this, &Webfile::signalProgress, Qt::DirectConnection);
    connect(m_transfer.get(), &Transfer::stalled, this, &Webfile::signalTimeout, Qt::DirectConnection);
    const QPointer<Webfile> self(this);
    m_thread.run(*m_transfer);
    return self && m_transfer->succeeded();
}
