// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QStringList>

/// Everything that belongs to one customer's cloud and local network. A value; without a deployment every
/// member is empty and the program is a complete offline player and editor.
struct Deployment
{
    /// The members of the key file that Google's console hands out, as they stand there.
    struct ServiceAccount
    {
        QString projectId;
        QString privateKeyId;
        QByteArray privateKey; ///< DER, PKCS#1; the file has it as PEM, PKCS#8
        QString clientEmail;
        QString clientId;
    };

    /// Each is scheme, name and port, without a path or a final "/".
    struct Hosts
    {
        QString token;
        QString storage;
        QString signedUrl;
        QString database;
        QString identity;
    };

    ServiceAccount serviceAccount;
    QString bucket;
    Hosts hosts;
    QString databaseCredential;
    QString webApiKey;
    QStringList broadcastAddresses; ///< IPv4; where announcements on the local network go
    QString exchangeProject;        ///< exchanged on the local network; empty: the current project

    /// Why the file that it was to be read from is not used, without secrets; empty when nothing is wrong.
    QString fault;

    /// False when no cloud is set up.
    bool isSet() const { return !bucket.isEmpty(); }

    /// Reads a deployment file's text; one that holds nothing but "lan" sets up no cloud. On failure the
    /// result is empty and `fault` says which member is at fault, without its value.
    static Deployment parse(const QByteArray& json, QString* fault);

    /// Reads a deployment file. A broken or unreadable one is named in the log and counts as none.
    static Deployment read(const QString& file);

    /// Reads the deployment from the first of these that is there: `commandLineFile`, the file that the
    /// environment variable NUVEX_DEPLOYMENT names, /etc/nuvex/deployment.json, the file compiled in. A named
    /// file that is missing or broken is not passed over for the next one.
    static Deployment find(const QString& commandLineFile);
};

/// What QML may read of the deployment.
class DeploymentInfo : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool available READ available CONSTANT)
    Q_PROPERTY(QString database READ database CONSTANT)
    Q_PROPERTY(QString databaseCredential READ databaseCredential CONSTANT)
    Q_PROPERTY(QString identity READ identity CONSTANT)
    Q_PROPERTY(QString webApiKey READ webApiKey CONSTANT)
    Q_PROPERTY(bool announces READ announces CONSTANT)
    Q_PROPERTY(QString fault READ fault CONSTANT)

public:
    explicit DeploymentInfo(const Deployment& deployment, QObject* parent = nullptr);

    /// Whether a cloud is set up; the members that speak of it are empty without.
    bool available() const { return m_deployment.isSet(); }
    /// Host of the realtime database, without a path.
    QString database() const { return m_deployment.hosts.database; }
    QString databaseCredential() const { return m_deployment.databaseCredential; }
    /// Host of the sign-in service, without a path.
    QString identity() const { return m_deployment.hosts.identity; }
    QString webApiKey() const { return m_deployment.webApiKey; }
    /// Whether this player is to be announced on the local network.
    bool announces() const { return !m_deployment.broadcastAddresses.isEmpty(); }
    /// Why the deployment file is not used; empty when nothing is wrong.
    QString fault() const { return m_deployment.fault; }

private:
    Deployment m_deployment;
};
