// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "quick/video/transparentvideosurface.h"

#include <QAbstractVideoBuffer>
#include <QSignalSpy>
#include <QVideoSurfaceFormat>
#include <QtTest>

namespace {

constexpr auto argb = QVideoFrame::Format_ARGB32;

/// A buffer whose memory cannot be had.
class UnmappableBuffer : public QAbstractVideoBuffer
{
public:
    UnmappableBuffer()
        : QAbstractVideoBuffer(NoHandle)
    {
    }
    MapMode mapMode() const override { return NotMapped; }
    uchar* map(MapMode, int*, int*) override { return nullptr; }
    void unmap() override {}
};

/// A frame whose pixel at (x, y) has the value base + 16 * y + x, its rows `stride` bytes apart.
QVideoFrame numberedFrame(const QSize& size, int stride, QRgb base = 0x80000000)
{
    QVideoFrame frame(stride * size.height(), size, stride, argb);
    frame.map(QAbstractVideoBuffer::WriteOnly);
    memset(frame.bits(), 0xEE, size_t(frame.mappedBytes()));
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            reinterpret_cast<QRgb*>(frame.bits() + y * stride)[x] = base + QRgb(16 * y + x);
    frame.unmap();
    return frame;
}

} // namespace

class TestTransparentVideoSurface : public QObject
{
    Q_OBJECT

private slots:
    void takesOnlyArgb();
    void startsOnceAndWithASize();
    void copiesRows_data();
    void copiesRows();
    void refusesBadFrames_data();
    void refusesBadFrames();
    void framesHeldByOthersStay();
    void stopBlanksTheImage();
};

void TestTransparentVideoSurface::takesOnlyArgb()
{
    const TransparentVideoSurface surface;
    for (auto handle : {QAbstractVideoBuffer::NoHandle, QAbstractVideoBuffer::GLTextureHandle,
                        QAbstractVideoBuffer::QPixmapHandle, QAbstractVideoBuffer::UserHandle})
        QCOMPARE(surface.supportedPixelFormats(handle), QList<QVideoFrame::PixelFormat>({argb}));
}

void TestTransparentVideoSurface::startsOnceAndWithASize()
{
    TransparentVideoSurface surface;
    QVERIFY(!surface.start(QVideoSurfaceFormat({0, 4}, argb)));
    QVERIFY(!surface.start(QVideoSurfaceFormat({4, 0}, argb)));
    QVERIFY(!surface.isActive());
    QVERIFY(surface.start(QVideoSurfaceFormat({4, 4}, argb)));
    QVERIFY(surface.isActive());
    QVERIFY(!surface.start(QVideoSurfaceFormat({4, 4}, argb)));
    QVERIFY(!surface.isActive());
    QVERIFY(surface.start(QVideoSurfaceFormat({4, 4}, argb)));
}

void TestTransparentVideoSurface::copiesRows_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("stride");
    QTest::newRow("packed") << 5 << 20;
    QTest::newRow("padded") << 5 << 32;
    QTest::newRow("one pixel wide") << 1 << 64;
}

void TestTransparentVideoSurface::copiesRows()
{
    QFETCH(int, width);
    QFETCH(int, stride);
    TransparentVideoSurface surface;
    QSignalSpy announced(&surface, &TransparentVideoSurface::frameAvailable);
    QVERIFY(surface.present(numberedFrame({width, 3}, stride)));
    QCOMPARE(announced.count(), 1);
    QCOMPARE(surface.image().format(), QImage::Format_ARGB32);
    QCOMPARE(surface.image().size(), QSize(width, 3));
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < width; ++x)
            QCOMPARE(surface.image().pixel(x, y), 0x80000000 + QRgb(16 * y + x));
}

void TestTransparentVideoSurface::refusesBadFrames_data()
{
    QTest::addColumn<QVideoFrame>("frame");
    QTest::newRow("invalid") << QVideoFrame();
    QTest::newRow("unmappable") << QVideoFrame(new UnmappableBuffer, {4, 4}, argb);
}

void TestTransparentVideoSurface::refusesBadFrames()
{
    QFETCH(QVideoFrame, frame);
    TransparentVideoSurface surface;
    QVERIFY(surface.present(numberedFrame({2, 2}, 8)));
    const QImage before = surface.image().copy();
    QSignalSpy announced(&surface, &TransparentVideoSurface::frameAvailable);
    QVERIFY(!surface.present(frame));
    QCOMPARE(announced.count(), 0);
    QCOMPARE(surface.image(), before);
}

/// Memory is used again, but never while somebody still shows what it holds.
void TestTransparentVideoSurface::framesHeldByOthersStay()
{
    TransparentVideoSurface surface;
    QList<QImage> shown;
    for (QRgb i = 1; i <= 4; ++i) {
        QVERIFY(surface.present(numberedFrame({3, 2}, 12, i << 24)));
        shown.append(surface.image());
    }
    QVERIFY(surface.present(numberedFrame({2, 2}, 8)));
    surface.stop();
    for (QRgb i = 1; i <= 4; ++i)
        QCOMPARE(shown[int(i) - 1].pixel(2, 1), (i << 24) + 18);
}

/// What the frame lacks, because its memory is shorter than its size says, is transparent.
void TestTransparentVideoSurface::stopBlanksTheImage()
{
    TransparentVideoSurface surface;
    surface.stop();
    QVERIFY(surface.image().isNull());

    QVERIFY(surface.present(QVideoFrame(10, {2, 2}, 8, argb)));
    QCOMPARE(surface.image().pixel(1, 1), 0U);
    surface.stop();
    QCOMPARE(surface.image().pixel(1, 1), 0x00FF0000U);
}

QTEST_GUILESS_MAIN(TestTransparentVideoSurface)
#include "tst_transparentvideosurface.moc"
