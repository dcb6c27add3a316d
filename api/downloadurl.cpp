// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/downloadurl.h"

#include "api/capi.h"

#include <QtConcurrent>

DownloadUrl::DownloadUrl()
{
    connect(&m_signing, &QFutureWatcher<QString>::finished, this, [this] { setUrl(m_signing.result()); });
}

void DownloadUrl::setObject(const QString& object)
{
    if (object == m_object)
        return;
    m_object = object;
    emit objectChanged();
    setUrl({});
    m_signing.setFuture({}); // an older answer does not count
    CAPI* capi = object.isEmpty() ? nullptr : CAPI::of(this);
    if (!capi)
        return;
    const Deployment deployment = capi->cloud().deployment();
    m_signing.setFuture(
        QtConcurrent::run([deployment, object] { return GCloud(deployment).signedUrl(object); }));
}

void DownloadUrl::setUrl(const QUrl& url)
{
    if (url == m_url)
        return;
    m_url = url;
    emit urlChanged();
}
