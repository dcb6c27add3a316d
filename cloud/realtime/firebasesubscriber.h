// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cloud/limits.h"
#include "cloud/realtime/eventlines.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>

/// Follows one place of the realtime database (Firebase, REST streaming), handing out its events as text.
///
/// A stream that fails, or is silent for longer than the service's keep-alives allow, is opened again by
/// checkUp(); one that ended cleanly only by subscribe(). Each subscriber has a network manager of its own,
/// since a manager has few connections to a host and a stream keeps one. GUI thread.
class FirebaseSubscriber : public QObject
{
    Q_OBJECT

public:
    explicit FirebaseSubscriber(QObject* parent = nullptr,
                                std::chrono::milliseconds silence = limits::streamSilence);
    ~FirebaseSubscriber() override;

    /// Opens the stream of `url`, in place of the one that is open.
    Q_INVOKABLE void subscribe(QString url);
    /// The stream is not opened again; while it is open it goes on.
    Q_INVOKABLE void unsubscribe();
    /// Opens the stream again when it has failed.
    Q_INVOKABLE void checkUp();

signals:
    /// An event: its lines, each ended by "\n", and an empty one. The service's keep-alives are events too.
    /// An empty text: the stream has ended, well or not.
    void dataReceived(QString data);

private:
    Q_SLOT void eventReadyRead();
    Q_SLOT void eventFinished();
    Q_SLOT void slotError(QNetworkReply::NetworkError error);

    void open(const QUrl& url);
    void close();
    void follow(const QUrl& from, const QUrl& target);

    QNetworkAccessManager m_manager;
    QNetworkReply* m_reply = nullptr; // the manager's; null when no stream is open
    QString m_url;
    EventLines m_lines;
    int m_redirects = 0; // since the last event
    bool m_hasFailed = false;
};
