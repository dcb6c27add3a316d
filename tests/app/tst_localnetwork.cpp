// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/localnetwork.h"
#include "tests/qml/shell/shell.h"
#include "tests/support/files.h"

#include <QProcess>
#include <QQmlComponent>
#include <QtTest>

#include <csignal>

/// The program in the local network, with a player in a process of its own.
class TestLocalNetwork : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void typeShowsPlayersAndExchanges();
    void typeIsNotForDocuments();
    void randomExchange();
    void callerMayBeLeftMeanwhile();
    void quitEndsTheWait();
    void receivedProjectIsShown();
    void restartKeepsTheName();

private:
    LocalNetwork& network() { return m_shell->api().localNetwork(); }
    QString work(const QString& path) { return m_shell->api().getWorkDirectory() + '/' + path; }
    QString other(const QString& path) const { return m_otherWork->filePath(path); }
    void say(const QByteArray& command) { m_other.write(command + '\n'); }
    void connectOther();
    QByteArray heard(const QByteArray& start);
    void pauseOther(bool pause) { ::kill(pid_t(m_other.processId()), pause ? SIGSTOP : SIGCONT); }
    std::unique_ptr<QObject> create(const QByteArray& qml);

    std::unique_ptr<Shell> m_shell;
    std::unique_ptr<QTemporaryDir> m_otherWork;
    QProcess m_other;
    QByteArray m_heard;
};

namespace {

const QByteArray exchangeDocument = "import QtQuick 2.15\nimport Nuvex.Native 1.1\n"
                                    "Item { property alias exchange: it\n Exchange { id: it }\n"
                                    "property string shown: it.players.join() + ' ' + it.status.outcome }";

QByteArray page(const QByteArray& text)
{
    return "import QtQuick 2.15\nText { objectName: 'document'; text: '" + text + "' }";
}

// The first seed with which chance says so.
quint32 seedFor(bool fetch)
{
    quint32 seed = 0;
    while ((QRandomGenerator(seed).generate() % 2 == 1) != fetch)
        ++seed;
    return seed;
}

} // namespace

void TestLocalNetwork::init()
{
    TestProfile::reset({{"userEmail", "ann@example.org"}, {"doOnStart", "play"}, {"lastProject", "Shop"}});
    TestProfile::addProject("Shop", page("old"));
    m_shell = std::make_unique<Shell>();
    m_otherWork = std::make_unique<QTemporaryDir>();
    m_heard.clear();
    write(work("Shop/dirmap"), "main.qml 1\n");
    write(other("Shop/main.qml"), page("new"));
    write(other("Shop/dirmap"), "main.qml 2\n");
    m_other.start(NUVEX_LANPLAYER, {m_otherWork->path(), "Other"});
    m_shell->api().startLocalServer();
    connectOther();
}

void TestLocalNetwork::connectOther()
{
    say("connect 127.0.0.1 " + QByteArray::number(network().port()));
    QTRY_COMPARE(network().players(), QStringList("Other"));
}

// The rest of the last line that the other player said with this beginning, or an empty one.
QByteArray TestLocalNetwork::heard(const QByteArray& start)
{
    m_heard += m_other.readAll();
    const int begin = m_heard.lastIndexOf(start);
    return begin < 0 ? QByteArray() : m_heard.mid(begin + start.size()).split('\n').first();
}

void TestLocalNetwork::cleanup()
{
    pauseOther(false);
    say("quit");
    QVERIFY(m_other.waitForFinished());
    QCOMPARE(m_other.exitCode(), 0);
    m_shell.reset();
}

std::unique_ptr<QObject> TestLocalNetwork::create(const QByteArray& qml)
{
    QQmlComponent component(qmlEngine(m_shell->root()));
    component.setData(qml, QUrl());
    return std::unique_ptr<QObject>(component.create());
}

void TestLocalNetwork::typeShowsPlayersAndExchanges()
{
    const std::unique_ptr<QObject> document = create(exchangeDocument);
    auto* type = document->property("exchange").value<QObject*>();
    const auto begin = [type](const char* what, const char* project) {
        bool begun = false;
        QMetaObject::invokeMethod(type, what, Q_RETURN_ARG(bool, begun), Q_ARG(QString, "Other"),
                                  Q_ARG(QString, project));
        return begun;
    };
    QVERIFY(begin("fetch", "Shop"));
    QVERIFY(!begin("fetch", "Shop"));
    QTRY_COMPARE(document->property("shown").toString(), QString("Other One file fetched from Other."));
    QCOMPARE(contents(work("Shop/main.qml")), page("new"));
    QCOMPARE(network().projectExchange().property("bytes").toInt(), page("new").size() + 2 * 11);
    QVERIFY(begin("send", "Shop"));
    QTRY_COMPARE(document->property("shown").toString(),
                 QString("Other Other and this player have the same revisions."));
    QVERIFY(!begin("fetch", "../Shop"));
    pauseOther(true);
    QVERIFY(begin("fetch", "Shop"));
    QMetaObject::invokeMethod(type, "cancel");
    QTRY_COMPARE(document->property("shown").toString(),
                 QString("Other Not all came from Other: cancelled."));
    m_other.kill();
    QTRY_COMPARE(document->property("shown").toString(), QString(" Not all came from Other: cancelled."));
    QVERIFY(!begin("fetch", "Shop"));
    QCOMPARE(document->property("shown").toString(), QString(" Other is not connected."));
    m_other.waitForFinished();
    init();
}

void TestLocalNetwork::typeIsNotForDocuments()
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("QQmlComponent: Component is not ready"));
    QVERIFY(!create("import QtQuick 2.15\nimport Nuvex.Native 1.0\nExchange {}"));
}

void TestLocalNetwork::randomExchange()
{
    network().seed(seedFor(true));
    m_shell->api().setConnectedPlayerName("Other");
    QCOMPARE(contents(work("Shop/main.qml")), page("new"));
    write(work("Shop/main.qml"), page("mine"));
    write(work("Shop/dirmap"), "main.qml 3\n");
    network().seed(seedFor(false));
    m_shell->api().setConnectedPlayerName("Other");
    QCOMPARE(contents(other("Shop/main.qml")), page("mine"));
}

// The page whose handler calls is left before the exchange is over.
void TestLocalNetwork::callerMayBeLeftMeanwhile()
{
    pauseOther(true);
    network().seed(seedFor(true));
    const std::unique_ptr<QObject> caller = create(R"(import QtQuick 2.15
Item {
    property bool returned: false
    property bool refusedMeanwhile: false
    function exchange() { CAPI.setConnectedPlayerName("Other"); }
    Loader {
        id: page
        sourceComponent: Timer { running: true; interval: 1; onTriggered: { exchange(); returned = true; } }
    }
    Timer {
        running: true; interval: 200
        onTriggered: { page.active = false; gc(); exchange(); refusedMeanwhile = !returned; }
    }
})");
    QTimer::singleShot(600, this, [this] { pauseOther(false); });
    QTRY_VERIFY(caller->property("returned").toBool());
    QVERIFY(caller->property("refusedMeanwhile").toBool());
    QCOMPARE(contents(work("Shop/main.qml")), page("new"));
}

void TestLocalNetwork::quitEndsTheWait()
{
    pauseOther(true);
    QTimer::singleShot(200, qApp, &QCoreApplication::quit);
    m_shell->api().setConnectedPlayerName("Other");
    QVERIFY(network().projectExchange().isRunning());
    QElapsedTimer clock;
    clock.start();
    m_shell.reset();
    QVERIFY2(clock.elapsed() < 2000, "it took long to end");
}

void TestLocalNetwork::receivedProjectIsShown()
{
    QTRY_COMPARE(m_shell->find("document")->property("text").toString(), QString("old"));
    QTRY_VERIFY(!heard("started ").isEmpty());
    say("send " + heard("started ") + " Shop");
    QTRY_COMPARE(m_shell->find("document")->property("text").toString(), QString("new"));
    QVERIFY2(m_shell->warnings().isEmpty(), qPrintable(m_shell->warnings().join('\n')));
}

void TestLocalNetwork::restartKeepsTheName()
{
    QTRY_VERIFY(heard("started ").startsWith("Player_"));
    const QByteArray name = heard("started ");
    m_shell.reset();
    QTRY_COMPARE(heard("finished "), name);
    m_heard.clear();
    m_shell = std::make_unique<Shell>();
    m_shell->api().startLocalServer();
    connectOther();
    QTRY_COMPARE(heard("started "), name);
}

int main(int argc, char** argv)
{
    const TestProfile profile; // before the application object
    QGuiApplication app(argc, argv);
    TestLocalNetwork test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_localnetwork.moc"
