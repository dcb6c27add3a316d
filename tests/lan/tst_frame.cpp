// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "lan/announcement.h"
#include "lan/frame.h"
#include "lan/limits.h"

#include <QTest>
#include <QtEndian>

namespace {

using Kind = Frame::Kind;
using State = FrameReader::State;

QByteArray hex(const char* text)
{
    return QByteArray::fromHex(text);
}

QByteArray withLength(const QByteArray& tag, qint64 length, const QByteArray& payload)
{
    QByteArray bytes(8, '\0');
    qToLittleEndian(length, bytes.data());
    return tag + bytes + payload;
}

// Texts of the frames in `bytes`, which are fed in pieces of at most `piece` bytes, and a mark if they break.
QStringList read(QByteArray bytes, int piece)
{
    FrameReader reader;
    QStringList frames;
    while (!bytes.isEmpty()) {
        const int count = int(qMin(reader.missing(), qint64(qMin(piece, bytes.size()))));
        const State state = reader.feed(bytes.left(count));
        bytes.remove(0, count);
        if (state == State::Broken)
            return frames << "broken";
        if (state == State::Complete)
            frames << QString("%1 %2 %3")
                          .arg(int(reader.frame().kind))
                          .arg(reader.frame().text)
                          .arg(reader.frame().size);
    }
    return reader.isInFrame() ? frames << "incomplete" : frames;
}

} // namespace

class TestFrame : public QObject
{
    Q_OBJECT

private slots:
    void anySplit();
    void bounds_data();
    void bounds();
    void announcements();
};

// The reader asks for no byte beyond the frame, so that content after it stays where it is.
void TestFrame::anySplit()
{
    const QByteArray stream = encodeFrame({Kind::Name, "Player_1"}) + withLength("XXXXX", 0, "") +
                              encodeFrame({Kind::File, "a", 3}) + withLength("OTHER", 4, "abcd") +
                              encodeFrame({Kind::Request, "b"});
    const QStringList expected{"0 Player_1 0", "3 XXXXX 0", "2 a 3", "3 OTHER 0", "1 b 0"};
    for (int piece = 1; piece <= stream.size(); ++piece)
        QCOMPARE(read(stream, piece), expected);
    FrameReader reader;
    QCOMPARE(reader.missing(), 13);
    reader.feed(stream.left(13));
    QCOMPARE(reader.missing(), encodeFrame({Kind::Name, "Player_1"}).size() - 13);
}

void TestFrame::bounds_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("last");
    const auto file = [](qint64 size) { return encodeFrame({Kind::File, "a", size}); };
    const auto row = [](const char* name, const QByteArray& bytes, const char* last) {
        QTest::newRow(name) << bytes << QString(last);
    };
    row("longest payload", withLength("XXXXX", limits::payloadBytes, QByteArray(limits::payloadBytes, 'x')),
        "3 XXXXX 0");
    row("payload too long", withLength("XXXXX", limits::payloadBytes + 1, ""), "broken");
    row("length -13", withLength("GFILE", -13, ""), "broken");
    row("length 2^63 - 6", withLength("GFILE", std::numeric_limits<qint64>::max() - 5, ""), "broken");
    row("null text", withLength("GFILE", 4, hex("ffffffff")), "1  0");
    row("no text", withLength("GFILE", 0, ""), "broken");
    row("text beyond the payload", withLength("GFILE", 8, hex("00000006 0061 0062")), "broken");
    row("enormous text", withLength("GFILE", 4, hex("fffffffe")), "broken");
    row("odd text", withLength("GFILE", 7, hex("00000003 0061 00")), "broken");
    row("half a surrogate pair", withLength("GFILE", 6, hex("00000002 d83c")), "broken");
    row("size missing", withLength("SFILE", 6, hex("00000002 0061")), "broken");
    row("size 0", file(0), "2 a 0");
    row("size -1", file(-1), "broken");
    row("largest size", file(limits::fileBytes), "2 a 1099511627776");
    row("size too large", file(limits::fileBytes + 1), "broken");
    row("no name", encodeFrame({Kind::Name, QString()}), "broken");
    row("name with a line feed", encodeFrame({Kind::Name, "a\nb"}), "broken");
    row("name too long", encodeFrame({Kind::Name, QString(256, 'n')}), "broken");
    row("more in the payload", withLength("GFILE", 8, hex("00000002 0061 0062")), "1 a 0");
    row("cut", file(7).chopped(1), "incomplete");
}

void TestFrame::bounds()
{
    QFETCH(QByteArray, bytes);
    QTEST(read(bytes, 70'000).constLast(), "last");
    QTEST(read(bytes, 1).constLast(), "last");
}

void TestFrame::announcements()
{
    const std::vector<std::pair<QByteArray, int>> ports{
        {announcement("Player_123", 50000), 50000},
        {"Player_123@50000", 50000},
        {"P@fifty", 0},
        {"P@65537", 1}, // cut to 16 bits
        {"Player_123", -1},
        {"P@1@2", -1},
        {"", -1},
    };
    for (const auto& [datagram, port] : ports) {
        const std::optional<quint16> announced = announcedPort(datagram);
        QVERIFY2((announced ? int(*announced) : -1) == port, datagram.constData());
    }
}

QTEST_APPLESS_MAIN(TestFrame)

#include "tst_frame.moc"
