// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cloud/deployment.h"

#include <QJsonObject>
#include <QMap>
#include <QNetworkAccessManager>
#include <QProcess>
#include <QTemporaryDir>

/// The real nuvex-localcloud, with data of its own, and a plain client that shares no code with the program's
/// (openssl signs for it). One thread.
class LocalCloud
{
public:
    LocalCloud();
    ~LocalCloud();
    Q_DISABLE_COPY(LocalCloud)

    /// The deployment that the server wrote, as the program reads it.
    const Deployment& deployment() const { return m_deployment; }
    /// That file, and the server's address.
    QString deploymentFile() const { return m_folder.filePath("deployment.json"); }
    QString address() const { return m_address; }
    /// The service account's private key, as PEM.
    QString keyFile() const { return m_folder.filePath("key.pem"); }

    /// Kills the server, as a power cut does; start() goes on with its data at the same port.
    void kill();
    void start();

    /// What is to go wrong with coming requests: a list in JSON, as docs/localcloud.md tables it.
    void setFaults(const QByteArray& faults) { ask("PUT", "/_localcloud/faults", faults); }
    /// Requests since the last call, "GET media" to their number, without those of this client's own.
    QMap<QString, int> takeCounters();
    /// Ends all event streams: "" cleanly, "cancel", "auth_revoked" or "silence".
    void endStreams(const QString& how) { ask("DELETE", "/_localcloud/streams?how=" + how); }
    /// Makes all tokens invalid.
    void endTokens();

    /// Puts an object; its content; the names of those below `prefix`.
    void put(const QString& name, const QByteArray& bytes);
    QByteArray object(const QString& name);
    QStringList objects(const QString& prefix);
    void removeObject(const QString& name);
    /// Writes into the database, below `place`.
    void setDatabase(const QString& place, const QByteArray& json);
    /// The body of the answer to a request; any path, with "/" first.
    QByteArray ask(const QByteArray& method, const QString& path, const QByteArray& body = {},
                   const QByteArray& token = {});

private:
    QByteArray token();
    QString bucketPath(const QString& service = {}) const;

    QTemporaryDir m_folder{"/dev/shm/nuvex-localcloud-XXXXXX"}; // it syncs a lot, and disks are shared
    QProcess m_process;
    QString m_address;
    Deployment m_deployment;
    QByteArray m_token;
    QNetworkAccessManager m_manager;
};
