// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cloud/deployment.h"

#include <QJsonDocument>
#include <QObject>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlExpression>

#include <memory>

/// The settings and the uploads of the native API, recorded, for tests that own the clock and the cloud.
class RecordingApi : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool iConnected READ iConnected WRITE setIConnected NOTIFY iConnectedChanged)

public:
    bool iConnected() const { return !answers.isEmpty() && answers.constLast(); }
    void setIConnected(bool connected) { answers.append(connected); }

    Q_INVOKABLE QString getSSetting(const QString& name) const { return settings[name].toString(); }
    Q_INVOKABLE bool getBSetting(const QString& name) const { return settings[name].toBool(); }
    Q_INVOKABLE void setSetting(const QString& name, const QVariant& value) { settings[name] = value; }
    Q_INVOKABLE void setBaseFolder(const QString& folder) { calls.append("setBaseFolder " + folder); }
    Q_INVOKABLE void uploadScreenshot(int size) { calls.append(QString("uploadScreenshot %1").arg(size)); }
    Q_INVOKABLE void doOneShareDown(const QString& folder, const QString& revision)
    {
        calls.append("doOneShareDown " + folder + " " + revision);
    }
    Q_INVOKABLE QObject* newFirebaseSubscriber();

    QVariantMap settings;
    QStringList calls;
    QVector<bool> answers;
    QObject* subscriber = nullptr; ///< the last one made; owned by the script that asked for it

signals:
    void iConnectedChanged();
    void reloadPlayer();
};

/// A realtime stream that a test feeds.
class Stream : public QObject
{
    Q_OBJECT

public:
    explicit Stream(RecordingApi* api)
        : m_api(api)
    {
    }
    Q_INVOKABLE void subscribe(const QString& url) { m_api->calls.append("subscribe " + url); }
    Q_INVOKABLE void unsubscribe() { m_api->calls.append("unsubscribe"); }
    Q_INVOKABLE void checkUp() { m_api->calls.append("checkUp"); }

signals:
    void dataReceived(const QString& data);

private:
    RecordingApi* m_api;
};

inline QObject* RecordingApi::newFirebaseSubscriber()
{
    subscriber = new Stream(this);
    QQmlEngine::setObjectOwnership(subscriber, QQmlEngine::JavaScriptOwnership);
    return subscriber;
}

/// A QML document that imports the shell's shared script as SS, in whose scope a test evaluates. Answers of
/// cloud calls that were given `answer(n)` as callback are collected in order.
class SharedScript
{
public:
    explicit SharedScript(RecordingApi* api)
    {
        QObject::connect(&engine, &QQmlEngine::warnings, [this](const QList<QQmlError>& errors) {
            for (const QQmlError& error : errors)
                warnings.append(error.toString());
        });
        engine.rootContext()->setContextProperty("CAPI", api);
        QQmlComponent component(&engine);
        component.setData(
            "import QtQuick 2.15\n"
            "import 'qrc:/Nuvex/PlayerQML/SharedVars.js' as SS\n"
            "import 'qrc:/Nuvex/PlayerQML/private'\n"
            "import 'qrc:/Nuvex/PlayerQML/private/limits.js' as Limits\n"
            "QtObject {\n"
            "    id: harness\n"
            "    property var heartbeat: Heartbeat {}\n"
            "    property var timer: RequestTimer {}\n"
            "    property var answers: []\n"
            "    property var ran: []\n"
            "    function keep(success, result) { answers.push([success, result]); }\n"
            "    function evaluate(text) { ran.push(text); if (text === 'broken') throw text; }\n"
            "    function run(code) { return eval(code); }\n"
            "}",
            QUrl());
        root.reset(component.create());
        Q_ASSERT_X(root, "SharedScript", qPrintable(component.errorString()));
        run("SS.JCAPI = CAPI");
    }

    /// Evaluates JavaScript; objects come back as variants.
    QVariant run(const QString& code)
    {
        QVariant result;
        QMetaObject::invokeMethod(root.get(), "run", Q_RETURN_ARG(QVariant, result), Q_ARG(QVariant, code));
        return result;
    }

    /// The answers so far, as JSON.
    QString answers() { return run("JSON.stringify(answers)").toString(); }
    QObject* child(const char* name) { return root->property(name).value<QObject*>(); }

    /// Sets up a cloud whose hosts are both `host`.
    void setHost(const QString& host)
    {
        run(QString("SS.deployment = {available: true, database: '%1', databaseCredential: 'cred', identity: "
                    "'%1',"
                    " webApiKey: 'key'}")
                .arg(host));
    }

    QQmlEngine engine;
    QStringList warnings;
    std::unique_ptr<QObject> root;
};
