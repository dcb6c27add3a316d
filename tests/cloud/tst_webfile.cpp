// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "cloud/http/webfile.h"
#include "cloud/limits.h"
#include "tests/support/httpserver.h"
#include "tests/support/logcapture.h"

#include <QBuffer>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>

using namespace std::chrono_literals;

namespace {

// What one transfer left behind.
struct Outcome
{
    bool success = false;
    int errorCode = -1;
    int httpStatus = -1;
    quint64 contentLength = 0;
    QByteArray body;
    bool hasReply = false;
    qint64 milliseconds = 0;
};

Outcome run(bool isPost, const QString& url, const Webfile::Headers& headers, const QByteArray& sent)
{
    Outcome outcome;
    QElapsedTimer clock;
    clock.start();
    Webfile transfer(url, headers);
    QBuffer device;
    if (isPost)
        device.setData(sent);
    device.open(isPost ? QIODevice::ReadOnly : QIODevice::WriteOnly);
    outcome.success = isPost ? transfer.post(&device) : transfer.get(&device);
    outcome.errorCode = transfer.errorCode();
    outcome.httpStatus = transfer.httpStatus();
    outcome.contentLength = transfer.contentLength();
    outcome.hasReply = transfer.reply() != nullptr;
    outcome.body = isPost && transfer.reply() ? transfer.reply()->readAll() : device.data();
    outcome.milliseconds = clock.elapsed();
    return outcome;
}

Outcome get(const QString& url, const Webfile::Headers& headers = {})
{
    return run(false, url, headers, {});
}

Outcome post(const QString& url, const QByteArray& sent, const Webfile::Headers& headers = {})
{
    return run(true, url, headers, sent);
}

// A call in another thread, while this one processes events.
class Elsewhere
{
public:
    explicit Elsewhere(const std::function<void()>& work)
        : m_thread(QThread::create(work))
    {
        m_thread->start();
    }
    ~Elsewhere() { m_thread->wait(); }
    bool isFinished() const { return m_thread->isFinished(); }

private:
    std::unique_ptr<QThread> m_thread;
};

int countOf(const QString& folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System).size();
}

} // namespace

Q_DECLARE_METATYPE(HttpAnswer)

class TestWebfile : public QObject
{
    Q_OBJECT

private slots:
    void outcomes_data();
    void outcomes();
    void postSendsBodyAndHeaders();
    void redirectIsNotFollowed();
    void largeBodies();
    void unreachable();
    void fullDestination();
    void endlessAnswer();
    void answerBeforeTheBodyIsRead();
    void progressIsSignalled();
    void destroyedDuringTransfer();
    void programQuitsDuringTransfer();
    void diesWithItsParent();
    void connectionsAreKept();
    void everythingEndsAtShutDown();
    void leavesNoThreadsOrHandles();
    void stalls();

private:
    HttpServer m_server;
};

void TestWebfile::outcomes_data()
{
    QTest::addColumn<HttpAnswer>("answer");
    QTest::addColumn<bool>("success");
    QTest::addColumn<int>("errorCode");
    QTest::addColumn<int>("httpStatus");
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("message");

    const auto row = [](const char* name, const HttpAnswer& answer, int error, int status, const char* body,
                        const char* message = "") {
        QTest::newRow(name) << answer << (error == 0) << error << status << QByteArray(body) << message;
    };
    row("200", HttpAnswer::complete(200, "hello"), 0, 200, "hello");
    row("200, empty", HttpAnswer::complete(200), 0, 200, "");
    row("206", HttpAnswer::complete(206, "part"), 0, 206, "part");
    row("201", HttpAnswer::complete(201, "made"), 99, 201, "made");
    row("204", HttpAnswer::complete(204), 99, 204, "");
    row("304", HttpAnswer::complete(304), 99, 304, "");
    row("401", HttpAnswer::complete(401), 204, 0, "", "network error AuthenticationRequiredError");
    row("403", HttpAnswer::complete(403), 201, 0, "", "error storage ContentAccessDenied");
    row("404", HttpAnswer::complete(404), 203, 0, "", "network error ContentNotFoundError");
    row("500", HttpAnswer::complete(500), 401, 0, "", "network error InternalServerError");
    row("503", HttpAnswer::complete(503), 403, 0, "", "error storage ServiceUnavailableError");
    row("cut body", HttpAnswer::cut("0123456789", 4), 2, 0, "0123", "error storage RemoteHostClosedError");
    row("cut head", HttpAnswer::raw("HTTP/1.1 200 OK\r\nContent-"), 2, 0, "",
        "network error RemoteHostClosedError");
    row("no head", HttpAnswer::raw(""), 2, 0, "", "network error RemoteHostClosedError");
    row("chunks",
        HttpAnswer::raw("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n"
                        "3\r\nabc\r\n1\r\nd\r\n0\r\n\r\n"),
        0, 200, "abcd");
    row("without length", HttpAnswer::raw("HTTP/1.1 200 OK\r\n\r\nuntil the end"), 0, 200, "until the end");
    row("slow", HttpAnswer::drip("0123456789", 5, 50ms), 0, 200, "0123456789");
}

// Every answer, by GET and by POST, from the main thread and from another one.
void TestWebfile::outcomes()
{
    QFETCH(HttpAnswer, answer);
    QFETCH(bool, success);
    QFETCH(int, errorCode);
    QFETCH(int, httpStatus);
    QFETCH(QByteArray, body);
    QFETCH(QString, message);
    m_server.setAnswer("/case", answer);
    const QString url = m_server.url("/case");
    const LogCapture log;
    std::array<Outcome, 4> outcomes{get(url), post(url, "sent", {{"Content-Type", "text/plain"}})};
    {
        const Elsewhere other([&] {
            outcomes[2] = get(url);
            outcomes[3] = post(url, "sent", {{"Content-Type", "text/plain"}});
        });
        QTRY_VERIFY(other.isFinished());
    }
    for (const Outcome& outcome : outcomes) {
        QCOMPARE(outcome.success, success);
        QCOMPARE(outcome.errorCode, errorCode);
        QCOMPARE(outcome.httpStatus, httpStatus);
        QVERIFY(outcome.hasReply);
    }
    QCOMPARE(outcomes[0].body, body);
    QCOMPARE(outcomes[2].body, body);
    QCOMPARE(log.messages().filter(message).size(), message.isEmpty() ? 0 : 4);
}

void TestWebfile::postSendsBodyAndHeaders()
{
    m_server.setAnswer("/post", HttpAnswer::complete(200, "answer"));
    const QByteArray sent("line\r\n\0binary", 13);
    const Outcome plain = post(m_server.url("/post"), sent, {{"Content-Type", "a/b"}, {"X-Own", "1"}});
    QCOMPARE(plain.body, QByteArray("answer"));
    QCOMPARE(plain.contentLength, 6ULL);
    const HttpRequest request = m_server.requests().constLast();
    QCOMPARE(request.method, QByteArray("POST"));
    QCOMPARE(request.body, sent);
    QCOMPARE(request.headers.value("content-type"), QByteArray("a/b"));
    QCOMPARE(request.headers.value("x-own"), QByteArray("1"));
    QCOMPARE(request.headers.value("user-agent"), QByteArray("Qt NetworkAccess 1.3"));
    QCOMPARE(request.headers.value("accept-encoding"), QByteArray("identity"));
    get(m_server.url("/post"), {{"User-Agent", "Mine"}});
    QCOMPARE(m_server.requests().constLast().headers.value("user-agent"), QByteArray("Mine"));
}

void TestWebfile::redirectIsNotFollowed()
{
    m_server.setAnswer("/from", HttpAnswer::complete(302, {}, "Location: /to\r\n"));
    m_server.setAnswer("/to", HttpAnswer::complete(200, "secret"));
    const int before = m_server.requests().size();
    const Outcome outcome = get(m_server.url("/from"), {{"Authorization", "Bearer x"}});
    QVERIFY(!outcome.success);
    QCOMPARE(outcome.errorCode, 99);
    QCOMPARE(outcome.httpStatus, 302);
    QCOMPARE(m_server.requests().size(), before + 1);
}

void TestWebfile::largeBodies()
{
    QByteArray large(20'000'000, Qt::Uninitialized);
    for (int i = 0; i < large.size(); ++i)
        large[i] = char(i * 2654435761U >> 13);
    m_server.setAnswer("/large", HttpAnswer::complete(200, large));
    const Outcome down = get(m_server.url("/large"));
    QVERIFY(down.success);
    QVERIFY(down.body == large);
    QCOMPARE(down.contentLength, quint64(large.size()));
    m_server.setAnswer("/up", HttpAnswer::complete(200));
    QVERIFY(post(m_server.url("/up"), large, {{"Content-Type", "a/b"}}).success);
    QVERIFY(m_server.requests().constLast().body == large);
}

void TestWebfile::unreachable()
{
    QTcpServer closed;
    closed.listen(QHostAddress::LocalHost);
    const QString url = QStringLiteral("http://127.0.0.1:%1/").arg(closed.serverPort());
    closed.close();
    QCOMPARE(get(url).errorCode, int(QNetworkReply::ConnectionRefusedError));
    QCOMPARE(get(QStringLiteral("other://host/")).errorCode, int(QNetworkReply::ProtocolUnknownError));
    QVERIFY(!get(QString()).success);
}

void TestWebfile::fullDestination()
{
    m_server.setAnswer("/file", HttpAnswer::drip(QByteArray(1'000'000, 'x'), 10, 10ms));
    QFile full(QStringLiteral("/dev/full"));
    QVERIFY(full.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    const LogCapture log;
    Webfile transfer(m_server.url("/file"), {});
    QVERIFY(!transfer.get(&full));
    QVERIFY(transfer.errorCode() != 0);
    QVERIFY(log.contains(QStringLiteral("Cannot write a downloaded file")));
}

void TestWebfile::endlessAnswer()
{
    const LogCapture log;
    m_server.setAnswer("/huge?secret", HttpAnswer::complete(200, QByteArray(2 * limits::answerBytes, 'x')));
    QVERIFY(!post(m_server.url("/huge?secret"), "x", {{"Content-Type", "a/b"}}).success);
    QVERIFY(log.contains(QStringLiteral("too large")));
    QVERIFY(!get(m_server.url("/missing?secret")).success);
    QVERIFY(log.contains(QStringLiteral("/missing")));
    QVERIFY(!log.contains(QStringLiteral("secret")));
}

// The server refuses while the body is still being sent; nothing may read the body once post() has returned.
void TestWebfile::answerBeforeTheBodyIsRead()
{
    HttpAnswer answer = HttpAnswer::complete(403);
    answer.end = HttpAnswer::End::Close;
    answer.early = true;
    m_server.setAnswer("/refused", answer);
    for (int i = 0; i < 10; ++i)
        QVERIFY(
            !post(m_server.url("/refused"), QByteArray(5'000'000, 'x'), {{"Content-Type", "a/b"}}).success);
}

void TestWebfile::progressIsSignalled()
{
    const QByteArray body(300'000, 'x');
    m_server.setAnswer("/progress", HttpAnswer::drip(body, 3, 150ms));
    Webfile transfer(m_server.url("/progress"), {});
    QSignalSpy spy(&transfer, &Webfile::signalProgress);
    QBuffer device;
    device.open(QIODevice::WriteOnly);
    QVERIFY(transfer.get(&device));
    QVERIFY(spy.size() >= 2);
    QCOMPARE(spy.constLast().at(0).toLongLong(), qlonglong(body.size()));
    QCOMPARE(spy.constLast().at(1).toLongLong(), qlonglong(body.size()));
}

void TestWebfile::destroyedDuringTransfer()
{
    m_server.setAnswer("/never", HttpAnswer::silence());
    const LogCapture log;
    auto* transfer = new Webfile(m_server.url("/never"), {});
    QTimer::singleShot(100, [transfer] { delete transfer; });
    QBuffer device;
    device.open(QIODevice::WriteOnly);
    QElapsedTimer clock;
    clock.start();
    QVERIFY(!transfer->get(&device));
    QVERIFY(clock.elapsed() < 5000);
    QVERIFY(log.contains(QStringLiteral("cancelled")));
}

void TestWebfile::programQuitsDuringTransfer()
{
    m_server.setAnswer("/never", HttpAnswer::silence());
    bool returned = false;
    QTimer::singleShot(0, [&] {
        Webfile transfer(m_server.url("/never"), {});
        QBuffer device;
        device.open(QIODevice::WriteOnly);
        returned = !transfer.get(&device) && transfer.errorCode() == QNetworkReply::OperationCanceledError;
    });
    QTimer::singleShot(100, qApp, &QCoreApplication::quit);
    QCoreApplication::exec();
    QVERIFY(returned);
}

void TestWebfile::diesWithItsParent()
{
    QPointer<Webfile> transfer;
    {
        QObject parent;
        transfer = new Webfile(m_server.url("/"), {}, &parent);
        QVERIFY(transfer);
    }
    QVERIFY(transfer.isNull());
    QObject parent;
    delete new Webfile(m_server.url("/"), {}, &parent);
}

void TestWebfile::connectionsAreKept()
{
    m_server.setAnswer("/ok", HttpAnswer::complete(200, "x"));
    const int before = m_server.connections();
    TransferThread thread;
    for (int i = 0; i < 5; ++i) {
        QBuffer device;
        device.open(QIODevice::ReadWrite);
        Webfile transfer(thread, m_server.url("/ok"), {{"Content-Type", "a/b"}});
        QVERIFY(i % 2 == 0 ? transfer.get(&device) : transfer.post(&device));
    }
    QCOMPARE(m_server.connections(), before + 1);
}

// Another thread waits for a transfer, and would for the next one, while this one ends all of them.
void TestWebfile::everythingEndsAtShutDown()
{
    m_server.setAnswer("/never", HttpAnswer::silence());
    TransferThread thread;
    std::array<int, 2> errors{-1, -1};
    const int before = m_server.requests().size();
    const Elsewhere other([&] {
        for (int& error : errors) {
            QBuffer device;
            device.open(QIODevice::WriteOnly);
            Webfile transfer(thread, m_server.url("/never"), {});
            transfer.get(&device);
            error = transfer.errorCode();
        }
    });
    QTRY_COMPARE(m_server.requests().size(), before + 1);
    thread.shutDown();
    QTRY_VERIFY(other.isFinished());
    QCOMPARE(errors, (std::array<int, 2>{QNetworkReply::OperationCanceledError,
                                         QNetworkReply::OperationCanceledError}));
}

// A leak of one a transfer would show as twenty more; sockets of earlier cases may still be closing.
void TestWebfile::leavesNoThreadsOrHandles()
{
    m_server.setAnswer("/ok", HttpAnswer::complete(200, "x"));
    get(m_server.url("/ok"));
    const int threads = countOf(QStringLiteral("/proc/self/task"));
    const int handles = countOf(QStringLiteral("/proc/self/fd"));
    for (int i = 0; i < 20; ++i)
        get(m_server.url("/ok"));
    QTRY_VERIFY(countOf(QStringLiteral("/proc/self/task")) <= threads);
    QTRY_VERIFY(countOf(QStringLiteral("/proc/self/fd")) <= handles);
}

// The slow cases, all at once: what makes no progress ends after 8 to 16 s, what does may take longer than
// that.
void TestWebfile::stalls()
{
    const QByteArray body(600'000, 'x');
    m_server.setAnswer("/never", HttpAnswer::silence());
    m_server.setAnswer("/late", HttpAnswer::complete(200, "late").after(10s));
    m_server.setAnswer("/drip", HttpAnswer::drip(body, 6, 3s));
    HttpAnswer half = HttpAnswer::drip(body, 2, 100ms);
    half.pieces.removeLast();
    m_server.setAnswer("/half", half);

    const LogCapture log;
    std::array<Outcome, 4> others;
    Outcome here;
    int turns = 0;
    {
        const Elsewhere drip([&] { others[0] = get(m_server.url("/drip")); });
        const Elsewhere late([&] {
            others[1] = post(m_server.url("/late"), "x", {{"Content-Type", "a/b"}});
        });
        const Elsewhere half([&] { others[2] = get(m_server.url("/half")); });
        const Elsewhere never([&] {
            others[3] = post(m_server.url("/never"), "x", {{"Content-Type", "a/b"}});
        });
        QTimer interface;
        connect(&interface, &QTimer::timeout, [&turns] { ++turns; });
        interface.start(100);
        here = get(m_server.url("/never"));
        QTRY_VERIFY_WITH_TIMEOUT(
            drip.isFinished() && late.isFinished() && half.isFinished() && never.isFinished(), 30'000);
    }
    QVERIFY2(turns > 20, "the main thread's events must go on while it waits");
    QVERIFY(others[0].success);
    QVERIFY(others[0].milliseconds > 16'000);
    QVERIFY(others[0].body == body);
    for (const Outcome& stalled : {here, others[2], others[3]}) {
        QVERIFY(!stalled.success);
        QCOMPARE(stalled.errorCode, int(QNetworkReply::TimeoutError));
        QVERIFY2(stalled.milliseconds > 7900 && stalled.milliseconds < 20'000,
                 qPrintable(QString::number(stalled.milliseconds)));
    }
    QVERIFY(!others[1].success);
    QCOMPARE(others[1].errorCode, int(QNetworkReply::TimeoutError));
    QCOMPARE(others[2].body.size(), body.size() / 2);
    QCOMPARE(log.messages().filter(QStringLiteral("Upload Time Out!!")).size(), 3);
    QCOMPARE(log.messages().filter(QRegularExpression(QStringLiteral("^timeout$"))).size(), 4);
}

QTEST_GUILESS_MAIN(TestWebfile)
#include "tst_webfile.moc"
