// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "quick/video/chromakey.h"

#include <QtTest>

#include <cmath>

class TestChromaKey : public QObject
{
    Q_OBJECT

private slots:
    void pixels_data();
    void pixels();
    void everyPixelIsANumber();
};

/// Expected values are worked out by hand from the four steps.
void TestChromaKey::pixels_data()
{
    QTest::addColumn<QVector<float>>("in");
    QTest::addColumn<QVector<float>>("out"); // premultiplied
    QTest::addColumn<float>("plus");
    using Values = QVector<float>;
    QTest::newRow("pure green vanishes") << Values{0, 1, 0} << Values{0, 0, 0, 0} << 0.0F;
    QTest::newRow("white stays") << Values{1, 1, 1} << Values{1, 1, 1, 1} << 0.0F;
    QTest::newRow("black stays") << Values{0, 0, 0} << Values{0, 0, 0, 1} << 0.0F;
    QTest::newRow("red stays") << Values{1, 0, 0} << Values{1, 0, 0, 1} << 0.0F;
    // a = 1; spill 0.6 - 0.5 = 0.1, fading by smoothstep(0.03, 0.28, 0.1) = 0.191296; luma 1.5
    QTest::newRow("spill turns to grey light")
        << Values{0.5F, 0.6F, 0.5F} << Values{0.458265F, 0.458265F, 0.458265F, 0.808704F} << 0.0F;
    // a = 1 - 3.5 * 0.14 = 0.51; spill 0.2, spill * a = 0.102, smoothstep 0.201056, a = 0.308944; luma 0.9
    QTest::newRow("half transparent")
        << Values{0.3F, 0.5F, 0.3F} << Values{0.133876F, 0.133876F, 0.133876F, 0.308944F} << 0.0F;
    QTest::newRow("brightened") << Values{0.2F, 0.1F, 0.2F} << Values{0.3F, 0.2F, 0.3F, 1} << 0.1F;
}

void TestChromaKey::pixels()
{
    QFETCH(QVector<float>, in);
    QFETCH(QVector<float>, out);
    QFETCH(float, plus);
    ChromaKey key;
    key.plus = plus;
    const Pixel keyed = keyPixel({in[0], in[1], in[2], 1}, key);
    const QVector<float> actual{keyed.r, keyed.g, keyed.b, keyed.a};
    for (int i = 0; i < 4; ++i)
        QVERIFY2(std::abs(actual[i] - out[i]) < 1e-5F,
                 qPrintable(QString("channel %1: %2").arg(i).arg(double(actual[i]), 0, 'g', 7)));
}

void TestChromaKey::everyPixelIsANumber()
{
    ChromaKey redGround;
    redGround.bgGreen = redGround.bgBlue = 0;
    for (const ChromaKey& key : {ChromaKey(), redGround, ChromaKey{10, 0, 0}, ChromaKey{0, 10, 1}})
        for (int i = 0; i <= 16 * 16 * 16; ++i) {
            const Pixel pixel =
                keyPixel({float(i % 16) / 15, float(i / 16 % 16) / 15, float(i / 256) / 15, 1}, key);
            QVERIFY(std::isfinite(pixel.r) && std::isfinite(pixel.g) && std::isfinite(pixel.b));
            QVERIFY(pixel.a <= 1);
        }
}

QTEST_APPLESS_MAIN(TestChromaKey)
#include "tst_chromakey.moc"
