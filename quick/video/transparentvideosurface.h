// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractVideoSurface>
#include <QImage>

/// Takes the frames of a media player as 32-bit pictures with straight alpha. GUI thread; the media backend
/// hands frames over to it.
class TransparentVideoSurface : public QAbstractVideoSurface
{
    Q_OBJECT

public:
    using QAbstractVideoSurface::QAbstractVideoSurface;

    /// The last presented frame; null before the first one, fully transparent after stop().
    QImage image() const { return m_image; }

    /// ARGB32 alone, so that the backend converts whatever it decodes without losing the alpha channel.
    QList<QVideoFrame::PixelFormat> supportedPixelFormats(
        QAbstractVideoBuffer::HandleType handleType = QAbstractVideoBuffer::NoHandle) const override;
    /// False for a format without a size. A surface that runs already stops and refuses.
    bool start(const QVideoSurfaceFormat& format) override;
    void stop() override;
    /// Copies the frame and announces it; false when it is invalid or cannot be mapped, and nothing changes.
    bool present(const QVideoFrame& frame) override;

signals:
    /// image() is a new frame.
    void frameAvailable();

private:
    QImage takeBuffer(const QSize& size);

    QImage m_image;
    QImage m_spare; // the frame before, whose memory the next one takes when nobody else holds it
};

/// The memory of a mapped frame.
struct PixelRows
{
    const uchar* bits;
    int byteCount;
    int bytesPerLine; ///< distance of two rows, which may be more than the pixels of one take
};

/// Copies `rows` into `image`, a 32-bit picture, row by row. Pixels that `rows` does not hold become
/// transparent. Any thread.
void copyRows(const PixelRows& rows, QImage& image);
