// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/storage/multipart.h"

#include <QTest>

#include <random>

using namespace localcloud;

/// Bodies of two parts, however they are cut into pieces.
class TestMultipart : public QObject
{
    Q_OBJECT

private slots:
    void boundaries();
    void everySplit();
    void randomContents();
    void faults();
};

namespace {

struct Parts
{
    std::string metadata, content, contentType;
    bool complete = false;
};

// Reads the body in pieces of the sizes that `next` gives.
template <typename Next>
Parts read(const std::string& body, Next next)
{
    Parts parts;
    MultipartReader reader("xYz", [&](std::string_view bytes) { parts.content += bytes; });
    for (std::size_t at = 0; at < body.size();) {
        const std::size_t size = std::min<std::size_t>(next(at), body.size() - at);
        reader.take(std::string_view(body).substr(at, size));
        at += size;
    }
    parts.metadata = reader.metadata();
    parts.contentType = reader.contentType();
    parts.complete = reader.isComplete();
    return parts;
}

std::string bodyOf(const std::string& content)
{
    return "--xYz\r\nContent-Type: application/json; charset=UTF-8\r\n\r\n{\"name\":\"n\"}\r\n--xYz\r\n"
           "Content-Type:  image/png\r\nX: y\r\n\r\n" +
           content + "\r\n--xYz--\r\n";
}

} // namespace

void TestMultipart::boundaries()
{
    const auto boundary = &MultipartReader::boundaryOf;
    QCOMPARE(boundary("multipart/related; boundary=abc"), std::string("abc"));
    QCOMPARE(boundary("multipart/related; boundary=\"a b;c\"; x=y"), std::string("a b;c"));
    QCOMPARE(boundary("multipart/related; boundary=abc ; type=x"), std::string("abc"));
    for (const char* type : {"", "multipart/related", "multipart/related; boundary=",
                             "multipart/related; boundary=\"", "multipart/form-data; boundary=abc"})
        QVERIFY2(boundary(type).empty(), type);
    QVERIFY(boundary("multipart/related; boundary=" + std::string(71, 'b')).empty());
}

void TestMultipart::everySplit()
{
    const std::string wanted = "\r\n--xY\r\n-\r\n--\r\n\r\n--x"; // almost delimiters
    const std::string body = bodyOf(wanted);
    for (std::size_t split = 1; split < body.size(); ++split) {
        const Parts parts = read(body, [&](std::size_t at) { return at < split ? split - at : body.size(); });
        QVERIFY2(parts.complete && parts.content == wanted, std::to_string(split).c_str());
        QCOMPARE(parts.metadata, std::string("{\"name\":\"n\"}"));
        QCOMPARE(parts.contentType, std::string("image/png"));
    }
    const Parts bytewise = read(body, [](std::size_t) { return 1; });
    QVERIFY(bytewise.complete && bytewise.content == wanted);
}

void TestMultipart::randomContents()
{
    std::mt19937 random(1);
    for (int round = 0; round < 300; ++round) {
        std::string content;
        for (std::size_t size = random() % 2000; content.size() < size;)
            content += "\r\n-xYz"[random() % 6];
        if (content.find("--xYz") != std::string::npos)
            continue;
        const Parts parts = read(bodyOf(content), [&](std::size_t) { return 1 + random() % 40; });
        QVERIFY(parts.complete);
        QCOMPARE(parts.content, content);
    }
}

void TestMultipart::faults()
{
    const auto all = [](std::size_t) { return std::size_t(1) << 30; };
    const std::string good = bodyOf("content");
    for (std::size_t size = 0; size < good.size() - 4; ++size)
        QVERIFY2(!read(good.substr(0, size), all).complete, std::to_string(size).c_str());
    QVERIFY_EXCEPTION_THROWN(read("--xYz\r\n\r\n{}\r\n--xYz--\r\n", all), MultipartReader::Fault);
    QVERIFY_EXCEPTION_THROWN(read(good.substr(0, good.size() - 4) + "\r\n\r\nthird\r\n--xYz--", all),
                             MultipartReader::Fault);
    QVERIFY_EXCEPTION_THROWN(read("--xYz\r\n" + std::string(100'000, 'h'), all), MultipartReader::Fault);
    QVERIFY_EXCEPTION_THROWN(read("--xYz\r\n\r\n" + std::string(3'000'000, 'm'), all),
                             MultipartReader::Fault);
    QVERIFY(!read(std::string(3'000'000, 'p'), all).complete); // a preamble of any length is not kept
}

QTEST_APPLESS_MAIN(TestMultipart)
#include "tst_localcloud_multipart.moc"
