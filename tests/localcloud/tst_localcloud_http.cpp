// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/base/contenthash.h"
#include "localcloud/base/encoding.h"
#include "localcloud/http/byterange.h"
#include "localcloud/http/message.h"

#include <QTest>

using namespace localcloud;

/// Texts of requests: escapes, targets, ranges; and the hashes.
class TestHttp : public QObject
{
    Q_OBJECT

private slots:
    void percentDecoding();
    void base64();
    void utf8();
    void targets();
    void ranges();
    void uploadRanges();
    void hashes();
};

void TestHttp::percentDecoding()
{
    using Result = std::optional<std::string>;
    QCOMPARE(percentDecode("a%20b+c%2B%e5%8c%97"), Result("a b+c+北"));
    QCOMPARE(percentDecode("a+b%2Bc", Plus::Blank), Result("a b+c"));
    QCOMPARE(percentDecode(std::string_view("%00", 3)), Result(std::string(1, '\0')));
    for (const char* broken : {"%", "%2", "a%2", "%zz", "%+1", "% 1"})
        QVERIFY2(!percentDecode(broken), broken);
    std::string all;
    for (int i = 0; i < 256; ++i)
        all += static_cast<char>(i);
    QCOMPARE(percentDecode(percentEncode(all)), Result(all));
    QCOMPARE(percentEncode("a/b ü", "/"), std::string("a/b%20%C3%BC"));
}

void TestHttp::base64()
{
    using Result = std::optional<std::string>;
    std::string bytes;
    for (int i = 0; i < 70; ++i) {
        QCOMPARE(base64Encode(bytes), QByteArray::fromStdString(bytes).toBase64().toStdString());
        QCOMPARE(base64Decode(base64Encode(bytes)), Result(bytes));
        QCOMPARE(base64Decode(base64UrlEncode(bytes)), Result(bytes));
        bytes += static_cast<char>(251 - i * 37);
    }
    for (const char* broken : {"a", "abcde", "ab cd", "ab=c", "====", "ab\n"})
        QVERIFY2(!base64Decode(broken), broken);
}

void TestHttp::utf8()
{
    for (const char* good : {"", "a", "ü", "北京", "🎬", "\xf4\x8f\xbf\xbf"})
        QVERIFY2(isUtf8(good), good);
    for (const char* bad : {"\xff", "\xc0\x80", "\xe0\x80\x80", "\xed\xa0\x80", "\xf4\x90\x80\x80", "\xc3",
                            "a\xe5\x8c", "\x80"})
        QVERIFY2(!isUtf8(bad), bad);
}

void TestHttp::targets()
{
    const auto target = Target::parse("/b/NUVEX%2Fp+1//x?name=a+b%2Bc&empty&=x&name=second&u=%C3%BC");
    QVERIFY(target);
    QCOMPARE(target->segments, (std::vector<std::string>{"b", "NUVEX/p+1", "", "x"}));
    QCOMPARE(target->value("name"), std::string("a b+c"));
    QCOMPARE(target->value("u"), std::string("ü"));
    QVERIFY(target->has("empty") && target->value("empty").empty());
    QCOMPARE(target->segment(9), std::string());
    for (const char* broken : {"", "x", "http://h/x", "*", "/%", "/a?b=%x", "?a"})
        QVERIFY2(!Target::parse(broken), broken);
}

void TestHttp::ranges()
{
    using Kind = RangeRequest::Kind;
    struct Row
    {
        const char* field;
        std::int64_t size;
        Kind kind;
        ByteRange range;
    };
    const Row rows[] = {
        {"", 10, Kind::Whole, {}},
        {"bytes=0-3", 10, Kind::Part, {0, 3}},
        {"bytes=9-", 10, Kind::Part, {9, 9}},
        {"bytes=-4", 10, Kind::Part, {6, 9}},
        {"bytes=-40", 10, Kind::Part, {0, 9}},
        {"bytes=3-999", 10, Kind::Part, {3, 9}},
        {"bytes=10-", 10, Kind::Unsatisfiable, {}},
        {"bytes=-0", 10, Kind::Unsatisfiable, {}},
        {"bytes=0-", 0, Kind::Unsatisfiable, {}},
        {"bytes=4-3", 10, Kind::Whole, {}},
        {"bytes=0-1,3-4", 10, Kind::Whole, {}},
        {"bytes=-", 10, Kind::Whole, {}},
        {"bytes=a-b", 10, Kind::Whole, {}},
        {"items=0-3", 10, Kind::Whole, {}},
        {"bytes=0-99999999999999999999", 10, Kind::Whole, {}},
    };
    for (const Row& row : rows) {
        const RangeRequest request = RangeRequest::parse(row.field, row.size);
        QVERIFY2(request.kind == row.kind, row.field);
        const bool same = request.range.first == row.range.first && request.range.last == row.range.last;
        QVERIFY2(row.kind != Kind::Part || same, row.field);
    }
}

void TestHttp::uploadRanges()
{
    using Bound = std::optional<std::int64_t>;
    struct Row
    {
        const char* field;
        Bound first, last, total;
    };
    const Row rows[] = {{"bytes 0-9/*", 0, 9, {}}, {"bytes 5-9/10", 5, 9, 10}, {"bytes 0-*/*", 0, {}, {}},
                        {"bytes 0-*/0", 0, {}, 0}, {"bytes */10", {}, {}, 10}, {"bytes */*", {}, {}, {}}};
    for (const Row& row : rows) {
        const auto range = UploadRange::parse(row.field);
        QVERIFY2(range && range->first == row.first && range->last == row.last && range->total == row.total,
                 row.field);
    }
    for (const char* broken : {"", "bytes", "bytes 0-9", "bytes 9-0/10", "bytes 0-10/10", "bytes -1-9/10",
                               "0-9/10", "bytes a-9/10", "bytes 0-9/x"})
        QVERIFY2(!UploadRange::parse(broken), broken);
}

void TestHttp::hashes()
{
    QCOMPARE(crc32c(0, "123456789"), 0xe3069283U); // the check value of the sum's definition
    std::string bytes(100'003, 'x');
    for (std::size_t i = 0; i < bytes.size(); i += 7)
        bytes[i] = static_cast<char>(i);
    ContentHash whole;
    whole.add(bytes);
    ContentHash pieces;
    for (std::size_t i = 0, size = 1; i < bytes.size(); i += size++)
        pieces.add(std::string_view(bytes).substr(i, size));
    QCOMPARE(pieces.crc32cText(), whole.crc32cText());
    QCOMPARE(pieces.md5(), whole.md5());
}

QTEST_APPLESS_MAIN(TestHttp)
#include "tst_localcloud_http.moc"
