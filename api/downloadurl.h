// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFutureWatcher>
#include <QObject>
#include <QUrl>

/// The QML type "DownloadUrl" of "Nuvex.Native" 1.1: a URL of an object of the cloud that is good for an
/// hour, of the CAPI that the engine's context property of that name holds. It is signed in the background,
/// so that a page of many pictures does not wait for signatures. GUI thread.
class DownloadUrl : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString object READ object WRITE setObject NOTIFY objectChanged)
    Q_PROPERTY(QUrl url READ url NOTIFY urlChanged)

public:
    DownloadUrl();

    /// Name of the object, plain text; empty for none. Whether there is such an object is not looked at.
    QString object() const { return m_object; }
    void setObject(const QString& object);
    /// Empty until the signature is there, and without a cloud.
    QUrl url() const { return m_url; }

signals:
    void objectChanged();
    void urlChanged();

private:
    void setUrl(const QUrl& url);

    QString m_object;
    QUrl m_url;
    QFutureWatcher<QString> m_signing;
};
