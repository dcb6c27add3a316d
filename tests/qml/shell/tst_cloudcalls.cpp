// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "tests/qml/shell/script.h"
#include "tests/support/httpserver.h"
#include "tests/support/logcapture.h"

#include <QtTest>

/// The shared script's calls against a real HTTP server, and what it makes of realtime streams.
class TestCloudCalls : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void requests_data();
    void requests();
    void results_data();
    void results();
    void login();
    void signUp();
    void placesWithoutAName();
    void revisionCountsUp_data();
    void revisionCountsUp();
    void timeOut();
    void withoutCloud();
    void streams_data();
    void streams();
    void streamOpenedAgain();
    void silentStreamIsOpenedAnew();
    void endedStreamsAreOpenedAgain();
    void hugeValuesAreLeft();
    void subscriptions();
    void playersProject_data();
    void playersProject();
    void commands_data();
    void commands();

private:
    void send(const QString& chunk) { emit static_cast<Stream*>(m_api->subscriber)->dataReceived(chunk); }

    std::unique_ptr<RecordingApi> m_api;
    std::unique_ptr<SharedScript> m_script;
};

namespace {

QString put(const QByteArray& data)
{
    return "event: put\ndata: {\"path\":\"/\",\"data\":" + data + "}\n\n";
}

} // namespace

void TestCloudCalls::init()
{
    m_script.reset();
    m_api = std::make_unique<RecordingApi>();
    m_api->settings = {{"lastProject", "Sh.op"}};
    m_script = std::make_unique<SharedScript>(m_api.get());
}

void TestCloudCalls::requests_data()
{
    QTest::addColumn<QString>("call");
    QTest::addColumn<QByteArray>("method");
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<QByteArray>("body");

    const QByteArray player = "/Users/ab@xorg/Players/we_1.json?auth=cred";
    QTest::newRow("get") << "SS.firebaseGet('a/b', keep)" << QByteArray("GET")
                         << QByteArray("/a/b.json?auth=cred") << QByteArray();
    QTest::newRow("get with query") << "SS.firebaseGet('a', keep, undefined, '&shallow=true')"
                                    << QByteArray("GET") << QByteArray("/a.json?auth=cred&shallow=true")
                                    << QByteArray();
    QTest::newRow("special characters")
        << "SS.firebaseGet('Caf\u00e9 50%/a?b#c', keep)" << QByteArray("GET")
        << QByteArray("/Caf%C3%A9%2050%25/a%3Fb%23c.json?auth=cred") << QByteArray();
    QTest::newRow("set object") << "SS.firebaseSet('a', {n: 1}, keep)" << QByteArray("POST")
                                << QByteArray("/a.json?auth=cred") << QByteArray(R"({"n":1})");
    QTest::newRow("set text") << "SS.firebaseSet('a', '{\"n\": 2}', keep)" << QByteArray("POST")
                              << QByteArray("/a.json?auth=cred") << QByteArray(R"({"n": 2})");
    QTest::newRow("delete") << "SS.firebaseDelete('a', keep)" << QByteArray("DELETE")
                            << QByteArray("/a.json?auth=cred") << QByteArray();
    QTest::newRow("players") << "SS.getPlayers('a.b@x.org', keep)" << QByteArray("GET")
                             << QByteArray("/Users/ab@xorg/Players.json?auth=cred") << QByteArray();
    QTest::newRow("players, no dots") << "SS.getPlayers('ab@xorg', keep)" << QByteArray("GET")
                                      << QByteArray("/Users/ab@xorg/Players.json?auth=cred") << QByteArray();
    QTest::newRow("delete player") << "SS.deletePlayer('a.b@x.org', 'w.e_1', keep)" << QByteArray("DELETE")
                                   << player << QByteArray();
    QTest::newRow("player's project")
        << "SS.setPlayerProject('a.b@x.org', 'w.e_1', 'My.Shop 2', keep)" << QByteArray("POST") << player
        << QByteArray(R"({"project":"MyShop 2"})");
    QTest::newRow("no keys of the database")
        << "SS.firebaseGet(SS.playerPath('a/b', 'Office/1 [A]$#\\x01_1'), keep)" << QByteArray("GET")
        << QByteArray("/Users/a%252Fb/Players/Office%252F1%20%255BA%255D%2524%2523%2501_1.json?auth=cred")
        << QByteArray();
    QTest::newRow("a project's name as a value")
        << "SS.setPlayerProject('a.b@x.org', 'w.e_1', 'Bar [1] #2', keep)" << QByteArray("POST") << player
        << QByteArray(R"({"project":"Bar [1] #2"})");
}

void TestCloudCalls::requests()
{
    QFETCH(QString, call);
    QFETCH(QByteArray, path);
    HttpServer server;
    server.setAnswer(path, HttpAnswer::complete(200, R"({"ok":1})"));
    m_script->setHost(server.url(""));
    m_script->run(call);
    QTRY_COMPARE(m_script->answers(), QString(R"([[true,{"ok":1}]])"));
    const HttpRequest request = server.requests().constFirst();
    QTEST(request.method, "method");
    QTEST(request.body, "body");
    const bool merges = request.method == "POST";
    QCOMPARE(request.headers.value("x-http-method-override"), QByteArray(merges ? "PATCH" : ""));
    QVERIFY2(m_script->warnings.isEmpty(), qPrintable(m_script->warnings.join('\n')));
}

void TestCloudCalls::results_data()
{
    QTest::addColumn<QString>("call");
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("answers");

    const QString get = "SS.firebaseGet('a', keep)";
    const QString erase = "SS.firebaseDelete('a', keep)";
    const QString set = "SS.firebaseSet('a', {}, keep)";
    QTest::newRow("nothing there") << get << 200 << QByteArray("null") << "[[true,null]]";
    QTest::newRow("error with body") << get << 401 << QByteArray(R"({"error":"denied"})")
                                     << R"([[false,{"error":"denied"}]])";
    QTest::newRow("error without body")
        << get << 503 << QByteArray() << R"([[false,{"error":"not conection"}]])";
    QTest::newRow("delete fails") << erase << 500 << QByteArray() << R"([[false,{"error":"not conection"}]])";
    QTest::newRow("not JSON") << get << 200 << QByteArray("<html>")
                              << R"([[false,{"error":"not conection"}]])";
    QTest::newRow("set") << set << 200 << QByteArray("{}") << "[[true,{}]]";
    QTest::newRow("set without callback")
        << "SS.firebaseSet('a', {}); SS.firebaseGet('a', keep)" << 200 << QByteArray("1") << "[[true,1]]";
}

void TestCloudCalls::results()
{
    QFETCH(QString, call);
    QFETCH(int, status);
    QFETCH(QByteArray, body);
    QFETCH(QString, answers);
    HttpServer server;
    server.setAnswer("/a.json?auth=cred", HttpAnswer::complete(status, body));
    m_script->setHost(server.url(""));
    m_script->run(call);
    QTRY_COMPARE(m_script->answers(), answers);
    QVERIFY2(m_script->warnings.isEmpty(), qPrintable(m_script->warnings.join('\n')));
}

void TestCloudCalls::login()
{
    HttpServer server;
    const QByteArray path = "/identitytoolkit/v3/relyingparty/verifyPassword?key=key";
    server.setAnswer(path, HttpAnswer::complete(400, R"({"error":{"message":"INVALID_PASSWORD"}})"));
    m_script->setHost(server.url(""));
    m_script->run("SS.login('ann@x.org', 'p\"w', keep)");
    QTRY_COMPARE(m_script->answers(), QString(R"([[false,{"error":{"message":"INVALID_PASSWORD"}}]])"));
    QVERIFY(!m_api->settings.contains("userEmail"));
    const HttpRequest request = server.requests().constFirst();
    QCOMPARE(request.headers["content-type"].split(';').constFirst(), QByteArray("application/json"));
    QCOMPARE(QJsonDocument::fromJson(request.body).toVariant().toMap(),
             QVariantMap({{"email", "ann@x.org"}, {"password", "p\"w"}, {"returnSecureToken", true}}));

    for (const char* noAccount : {"null", "7", "[]", "{}", R"({"email":7})", R"({"email":""})", "<html>"}) {
        server.setAnswer(path, HttpAnswer::complete(200, noAccount));
        m_script->run("answers = []; SS.login('ann@x.org', 'p', keep)");
        QTRY_COMPARE(m_script->answers(), QString("[[false,{}]]"));
    }
    QVERIFY(!m_api->settings.contains("userEmail"));

    server.setAnswer(path, HttpAnswer::complete(200, R"({"email":"Ann@x.org"})"));
    m_script->run("SS.login('ann@x.org', 'p', keep)");
    QTRY_COMPARE(m_api->settings["userEmail"].toString(), QString("Ann@x.org"));
}

void TestCloudCalls::signUp()
{
    HttpServer server;
    server.setAnswer("/identitytoolkit/v3/relyingparty/signupNewUser?key=key",
                     HttpAnswer::complete(200, R"({"email":"new@x.org"})"));
    server.setAnswer("/identitytoolkit/v3/relyingparty/verifyPassword?key=key",
                     HttpAnswer::complete(200, R"({"email":"new@x.org"})"));
    m_script->setHost(server.url(""));
    m_script->run("SS.signupNewUser('new@x.org', 'p', keep)");
    QTRY_COMPARE(m_script->answers(), QString(R"([[true,{"email":"new@x.org"}]])"));
    QCOMPARE(m_api->settings["userEmail"].toString(), QString("new@x.org"));
}

// Without an account there is no place for a heartbeat, nor for a command.
void TestCloudCalls::placesWithoutAName()
{
    HttpServer server;
    m_script->setHost(server.url(""));
    m_script->run("SS.heartbeat('', 'west_1', keep); SS.updateRev('a', '...', keep);"
                  "SS.subscribeToPlayerCommand('', 'west_1', harness)");
    const QString refusal = R"([false,{"error":"no such place in the database"}])";
    QTRY_COMPARE(m_script->answers(), "[" + refusal + "," + refusal + "]");
    QCOMPARE(server.requests().size(), 0);
    QVERIFY(m_api->calls.isEmpty());
}

void TestCloudCalls::revisionCountsUp_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("record");
    QTest::addColumn<QByteArray>("written");
    QTest::newRow("none yet") << 200 << QByteArray("null") << QByteArray(R"({"revision":0})");
    QTest::newRow("zero") << 200 << QByteArray(R"({"revision":0})") << QByteArray(R"({"revision":1})");
    QTest::newRow("seven") << 200 << QByteArray(R"({"revision":7,"x":1})") << QByteArray(R"({"revision":8})");
    QTest::newRow("no revision") << 200 << QByteArray(R"({"x":1})") << QByteArray(R"({"revision":1})");
    QTest::newRow("unreadable") << 500 << QByteArray() << QByteArray();
}

void TestCloudCalls::revisionCountsUp()
{
    QFETCH(int, status);
    QFETCH(QByteArray, record);
    QFETCH(QByteArray, written);
    HttpServer server;
    server.setAnswer("/Users/axorg/Projects/Shop.json?auth=cred", HttpAnswer::complete(status, record));
    m_script->setHost(server.url(""));
    m_script->run("SS.updateRev('a.x.org', 'Shop', keep)");
    QTRY_VERIFY(m_script->answers().startsWith(written.isEmpty() ? "[[false" : "[[true"));
    QCOMPARE(server.requests().size(), written.isEmpty() ? 1 : 2);
    QCOMPARE(server.requests().constLast().body, written);
}

void TestCloudCalls::timeOut()
{
    HttpServer server;
    server.setAnswer("/a.json?auth=cred", HttpAnswer::silence());
    m_script->setHost(server.url(""));
    m_script->run("timer.interval = 50; SS.firebaseGet('a', keep, timer)");
    QTRY_COMPARE(m_script->answers(), QString(R"([[false,{"error":"not conection"}]])"));

    server.setAnswer("/identitytoolkit/v3/relyingparty/verifyPassword?key=key", HttpAnswer::silence());
    m_script->run("answers = []; SS.login('a', 'b', keep, timer)");
    QTRY_COMPARE(m_script->answers(), QString("[[false,{}]]")); // the page says "... error connecting"
}

void TestCloudCalls::withoutCloud()
{
    m_script->run("SS.firebaseGet('a', keep); SS.firebaseSet('a', {}); SS.login('a', 'b', keep);"
                  "SS.updateRev('a', 'b', keep); SS.heartbeat('a', 'b', keep, timer)");
    QCOMPARE(m_script->run("String(SS.subscribeToPlayerCommand('a', 'b', harness))").toString(),
             QString("null"));
    QCOMPARE(m_script->answers(), QString("[]"));
    const QString refusal = R"([false,{"error":"no cloud is set up"}])";
    QTRY_COMPARE(m_script->answers(),
                 "[" + QStringList(QVector<QString>(4, refusal).toList()).join(',') + "]");
    QCOMPARE(m_script->child("timer")->property("running").toBool(), false);
    QVERIFY(m_api->calls.isEmpty());
    QVERIFY2(m_script->warnings.isEmpty(), qPrintable(m_script->warnings.join('\n')));
}

void TestCloudCalls::streams_data()
{
    QTest::addColumn<QString>("stream");
    QTest::addColumn<QStringList>("revisions");

    QTest::newRow("one") << put("5") << QStringList{"5"};
    QTest::newRow("several") << put("5") + put("\"x y\"") + put("6") << QStringList{"5", "x y", "6"};
    QTest::newRow("no blank line") << "event: put\ndata: {\"data\":5}" << QStringList{"5"};
    QTest::newRow("CRLF") << put("5").replace("\n", "\r\n") + put("6").replace("\n", "\r\n")
                          << QStringList{"5", "6"};
    QTest::newRow("CR") << put("5").replace("\n", "\r") + put("6").replace("\n", "\r")
                        << QStringList{"5", "6"};
    QTest::newRow("null") << put("null") << QStringList();
    QTest::newRow("no data") << "event: put\ndata: {\"path\":\"/\"}\n\n" << QStringList();
    QTest::newRow("keep-alive") << "event: keep-alive\ndata: null\n\n" + put("7") << QStringList{"7"};
    QTest::newRow("patch") << "event: patch\ndata: {\"path\":\"/\",\"data\":5}\n\n" << QStringList();
    QTest::newRow("almost put") << "event: put \ndata: {\"data\":5}\n\n" << QStringList();
    QTest::newRow("broken JSON") << "event: put\ndata: {\"data\":\n\n" + put("8") << QStringList{"8"};
    QTest::newRow("data first") << "data: {\"data\":5}\nevent: put\n\n" + put("9") << QStringList{"9"};
    QTest::newRow("event within a text")
        << put("\"event: put\"") + put("1") << QStringList{"event: put", "1"};
}

// Each stream in one piece, in single characters, and in two pieces split at every place.
void TestCloudCalls::streams()
{
    QFETCH(QString, stream);
    QFETCH(QStringList, revisions);
    m_script->setHost("http://localhost");
    QStringList expected;
    for (const QString& revision : revisions)
        expected.append("doOneShareDown Shop " + revision);

    const auto replay = [&](const QStringList& chunks) {
        m_script->run("SS.subscribeToProjectRevision('a', 'Shop')");
        m_api->calls.clear();
        for (const QString& chunk : chunks)
            send(chunk);
        return m_api->calls;
    };
    QCOMPARE(replay({stream}), expected);
    QStringList characters = stream.split(QString(), Qt::SkipEmptyParts);
    QCOMPARE(replay(characters), expected);
    for (int cut = 1; cut < stream.size(); ++cut)
        QCOMPARE(replay({stream.left(cut), stream.mid(cut)}), expected);
}

void TestCloudCalls::streamOpenedAgain()
{
    m_script->setHost("http://localhost");
    m_script->run("SS.subscribeToProjectRevision('a', 'Shop')");
    m_api->calls.clear();
    send("event: put\ndata: {\"path\":\"/\",\"da"); // the connection breaks here
    send(put("4"));
    QCOMPARE(m_api->calls, QStringList{"doOneShareDown Shop 4"});
}

// One that tells nothing has ended, or its connection has gone; what it was about to say is forgotten.
void TestCloudCalls::silentStreamIsOpenedAnew()
{
    m_script->setHost("http://h");
    m_script->run("SS.commandsSubscription = SS.subscribeToProjectRevision('a', 'My.Shop')");
    send("event: put\ndata: {\"path\":\"/\",\"data\":\"");
    const QString opening = "subscribe http://h/Users/a/Projects/MyShop/revision.json?auth=cred";
    QCOMPARE(m_api->calls, QStringList{opening});
    m_script->run("SS.checkUpSubscriptions(); Limits.streamSilence = 0; SS.checkUpSubscriptions();"
                  "Limits.streamSilence = 75000; SS.checkUpSubscriptions()");
    QCOMPARE(m_api->calls, QStringList({opening, "checkUp", opening, "checkUp"}));
    send(put("5"));
    QCOMPARE(m_api->calls.constLast(), QString("doOneShareDown My.Shop 5"));
    m_script->run("SS.unsubscribe(SS.commandsSubscription); SS.commandsSubscription = null");
}

// At once, then after growing pauses; a heartbeat may be sooner, and nothing is opened twice.
void TestCloudCalls::endedStreamsAreOpenedAgain()
{
    m_script->setHost("http://h");
    m_script->run(
        "Limits.reopenFirst = 0; SS.commandsSubscription = SS.subscribeToProjectRevision('a', 'Shop')");
    const QString opening = m_api->calls.constFirst();
    m_script->run("SS.reopenEnded()");
    send(put("5"));
    QCOMPARE(m_api->calls, QStringList({opening, "doOneShareDown Shop 5"}));
    m_api->calls.clear();
    send("");
    m_script->run("SS.reopenEnded(); SS.reopenEnded(); SS.checkUpSubscriptions()");
    QCOMPARE(m_api->calls, QStringList({opening, "checkUp"}));
    m_script->run("Limits.reopenFirst = 60000");
    send("");
    m_script->run("SS.reopenEnded()");
    QCOMPARE(m_api->calls.size(), 2);
    m_script->run("SS.checkUpSubscriptions(); SS.reopenEnded()");
    QCOMPARE(m_api->calls, QStringList({opening, "checkUp", opening}));
    m_script->run("Limits.reopenFirst = 1000; SS.unsubscribe(SS.commandsSubscription);"
                  "SS.commandsSubscription = null; SS.reopenEnded()");
    QCOMPARE(m_api->calls.size(), 4);
}

void TestCloudCalls::hugeValuesAreLeft()
{
    m_script->setHost("http://h");
    const QString huge = put('"' + QByteArray(9'000'000, 'x') + '"');
    const LogCapture log;
    for (const char* subscribing :
         {"SS.subscribeToProjectRevision('a', 'Shop')", "SS.subscribeToPlayerProject('a', 'b')"}) {
        m_script->run(subscribing);
        m_api->calls.clear();
        send(huge);
        QCOMPARE(m_api->calls, QStringList());
    }
    QCOMPARE(m_api->settings["lastProject"].toString(), QString("Sh.op"));
    QCOMPARE(log.messages().size(), 2);
    for (const QString& line : log.messages())
        QVERIFY(line.size() < 1000);
}

void TestCloudCalls::subscriptions()
{
    m_script->setHost("http://h");
    QSignalSpy reloads(m_api.get(), &RecordingApi::reloadPlayer);
    m_script->run("SS.playersSubscription = SS.subscribeToPlayerProject('a.b', 'w.1')");
    QCOMPARE(m_api->calls, QStringList{"subscribe http://h/Users/ab/Players/w1/project.json?auth=cred"});
    send(put("\"Shop\"")); // shown already, the database knows no dots
    send(put("null"));
    QCOMPARE(reloads.size(), 0);
    send(put("\"Cafe\""));
    QCOMPARE(m_api->settings["lastProject"].toString(), QString("Cafe"));
    QCOMPARE(m_api->calls.constLast(), QString("setBaseFolder Cafe"));
    QCOMPARE(reloads.size(), 1);

    const QPointer<QObject> stream = m_api->subscriber;
    m_script->run("SS.unsubscribe(SS.playersSubscription)");
    QCOMPARE(m_api->calls.constLast(), QString("unsubscribe"));
    QTRY_VERIFY(stream.isNull());
    m_script->run("SS.unsubscribe(null)");
    QVERIFY2(m_script->warnings.isEmpty(), qPrintable(m_script->warnings.join('\n')));
}

void TestCloudCalls::playersProject_data()
{
    QTest::addColumn<QString>("told"); // what the player knows to be in its entry
    QTest::addColumn<QByteArray>("entry");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QByteArray>("written");
    const QByteArray own = R"({"project":"Shop"})";
    QTest::newRow("a new player") << "" << QByteArray("null") << "Sh.op" << own;
    QTest::newRow("as it was") << "Shop" << QByteArray("\"Shop\"") << "Sh.op" << QByteArray();
    QTest::newRow("chosen here") << "Cafe" << QByteArray("\"Cafe\"") << "Sh.op" << own;
    QTest::newRow("chosen there while it was off")
        << "Shop" << QByteArray("\"Cafe\"") << "Cafe" << QByteArray();
    QTest::newRow("chosen on both sides") << "Bar" << QByteArray("\"Cafe\"") << "Cafe" << QByteArray();
    QTest::newRow("never told") << "" << QByteArray("\"Cafe\"") << "Cafe" << QByteArray();
    for (const char* name : {"\"../x\"", "\"..\"", "7", "\"\"", "{\"a\":1}"})
        QTest::newRow(name) << "Shop" << QByteArray(name) << "Sh.op" << own;
}

void TestCloudCalls::playersProject()
{
    QFETCH(QString, told);
    QFETCH(QByteArray, entry);
    QFETCH(QString, shown);
    QFETCH(QByteArray, written);
    HttpServer server;
    server.setAnswer("/Users/ab/Players/w1.json?auth=cred", HttpAnswer::complete(200, "{}"));
    m_script->setHost(server.url(""));
    if (!told.isEmpty())
        m_api->settings["toldProject"] = "Users/ab/Players/w1/" + told;
    m_script->run("SS.subscribeToPlayerProject('a.b', 'w.1')");
    send(put(entry));
    QCOMPARE(m_api->settings["lastProject"].toString(), shown);
    QTRY_COMPARE(server.requests().size(), written.isEmpty() ? 0 : 1);
    QTRY_COMPARE(m_api->settings["toldProject"].toString(),
                 "Users/ab/Players/w1/" + QString(shown).remove('.'));
    if (!written.isEmpty())
        QCOMPARE(server.requests().constFirst().body, written);
}

void TestCloudCalls::commands_data()
{
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<QString>("ran"); // as JSON, before the clearing has been answered
    QTest::addColumn<QString>("ranInTheEnd");
    QTest::addColumn<int>("status");

    QTest::newRow("null") << QByteArray("null") << "[]"
                          << "[]" << 200;
    QTest::newRow("empty") << QByteArray("\"\"") << "[]"
                           << "[]" << 200;
    QTest::newRow("plain") << QByteArray("\"go()\"") << R"#(["go()"])#"
                           << R"#(["go()"])#" << 200;
    QTest::newRow("broken") << QByteArray("\"broken\"") << R"#(["broken"])#"
                            << R"#(["broken"])#" << 200;
    QTest::newRow("restart") << QByteArray("\"CAPI.reStartApp()\"") << "[]"
                             << R"#(["CAPI.reStartApp()"])#" << 200;
    QTest::newRow("restart in a text") << QByteArray("\"say('reStartApp')\"") << "[]"
                                       << R"#(["say('reStartApp')"])#" << 500;
}

void TestCloudCalls::commands()
{
    QFETCH(QByteArray, command);
    QFETCH(QString, ran);
    QFETCH(QString, ranInTheEnd);
    QFETCH(int, status);
    HttpServer server;
    server.setAnswer("/Users/ab/Players/w1.json?auth=cred", HttpAnswer::complete(status, "{}"));
    m_script->setHost(server.url(""));
    m_script->run("SS.subscribeToPlayerCommand('a.b', 'w.1', harness)");
    send(put(command));
    QCOMPARE(m_script->run("JSON.stringify(ran)").toString(), ran);
    QTRY_COMPARE(m_script->run("JSON.stringify(ran)").toString(), ranInTheEnd);
    const int cleared = ranInTheEnd == "[]" ? 0 : 1;
    QTRY_COMPARE(server.requests().size(), cleared);
    if (cleared)
        QCOMPARE(server.requests().constFirst().body, QByteArray(R"({"command":""})"));
}

QTEST_MAIN(TestCloudCalls)
#include "tst_cloudcalls.moc"
