// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "app/guardednetwork.h"
#include "app/limits.h"
#include "tests/support/httpserver.h"
#include "tests/support/logcapture.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QtTest>

Q_DECLARE_METATYPE(HttpAnswer)

/// The engine's own requests, as scripts make them.
class TestGuardedNetwork : public QObject
{
    Q_OBJECT

private slots:
    void answers_data();
    void answers();
    void redirects_data();
    void redirects();

private:
    QString ask(const QString& method, const QString& url);

    GuardedNetwork m_network;
};

// Status and length of what an XMLHttpRequest with a body brings in the end.
QString TestGuardedNetwork::ask(const QString& method, const QString& url)
{
    QQmlEngine engine;
    engine.setNetworkAccessManagerFactory(&m_network);
    QQmlComponent component(&engine);
    component.setData(R"(import QtQml 2.15
        QtObject {
            property string result
            function ask(method, url) {
                const http = new XMLHttpRequest();
                http.onreadystatechange = function() {
                    if (http.readyState === XMLHttpRequest.DONE)
                        result = http.status + " " + http.responseText.length;
                };
                http.open(method, url);
                http.send("secret word");
            }
        })",
                      QUrl());
    const std::unique_ptr<QObject> script(component.create());
    const auto result = [&script] { return script->property("result").toString(); };
    QMetaObject::invokeMethod(script.get(), "ask", Q_ARG(QVariant, method), Q_ARG(QVariant, url));
    return QTest::qWaitFor([&result] { return !result().isEmpty(); }, 20'000) ? result() : "nothing";
}

void TestGuardedNetwork::answers_data()
{
    QTest::addColumn<HttpAnswer>("answer");
    QTest::addColumn<QString>("result");
    const QByteArray largest(int(limits::fetchedBytes), 'x');
    const QByteArray packed("\x1f\x8b\x08\0\0\0\0\0\0\x03\x4b\x4c\x4c\x4c\x04\0\x45\xe5\x98\xad\x04\0\0\0",
                            24); // "aaaa"
    QTest::newRow("plain") << HttpAnswer::complete(200, "12345") << "200 5";
    QTest::newRow("largest") << HttpAnswer::complete(200, largest) << "200 67108864";
    // The network tells how far it is ten times a second.
    const HttpAnswer::Piece pause{std::chrono::milliseconds(300), "y"};
    HttpAnswer tooLarge = HttpAnswer::complete(200, largest + largest + 'y');
    tooLarge.pieces.last().bytes.chop(1);
    tooLarge.pieces.append(pause);
    QTest::newRow("too large") << tooLarge << "0 0";
    HttpAnswer endless = HttpAnswer::raw("HTTP/1.1 200 OK\r\n\r\n" + largest + largest);
    endless.pieces.append(pause);
    QTest::newRow("endless") << endless << "0 0";
    QTest::newRow("packed") << HttpAnswer::complete(200, packed, "Content-Encoding: gzip\r\n")
                            << "200 22"; // as UTF-8
}

void TestGuardedNetwork::answers()
{
    QFETCH(HttpAnswer, answer);
    HttpServer server;
    server.setAnswer("/x?auth=hidden", answer);
    const LogCapture log;
    QTEST(ask("GET", server.url("/x?auth=hidden")), "result");
    QVERIFY(!log.contains("hidden"));
}

void TestGuardedNetwork::redirects_data()
{
    QTest::addColumn<QString>("method");
    QTest::addColumn<QString>("host");
    QTest::addColumn<bool>("isFollowed");
    QTest::newRow("to the same host") << "POST"
                                      << "127.0.0.1" << true;
    QTest::newRow("to another host") << "POST"
                                     << "localhost" << false;
    QTest::newRow("merging, to another host") << "PATCH"
                                              << "localhost" << false;
    QTest::newRow("nothing is sent along") << "GET"
                                           << "localhost" << true;
}

void TestGuardedNetwork::redirects()
{
    QFETCH(QString, method);
    QFETCH(QString, host);
    QFETCH(bool, isFollowed);
    HttpServer server;
    HttpServer other;
    const QString target = other.url("/there").replace("127.0.0.1", host);
    server.setAnswer("/x", HttpAnswer::complete(307, {}, "Location: " + target.toUtf8() + "\r\n"));
    other.setAnswer("/there", HttpAnswer::complete(200, "12345"));
    QCOMPARE(ask(method, server.url("/x")), QString(isFollowed ? "200 5" : "0 0"));
    QCOMPARE(other.requests().size(), isFollowed ? 1 : 0);
}

QTEST_GUILESS_MAIN(TestGuardedNetwork)
#include "tst_guardednetwork.moc"
