// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "quick/video/transparentvideosurface.h"

#include "quick/logging.h"

#include <QVideoSurfaceFormat>

#include <cstring>
#include <utility>

namespace {

constexpr QRgb transparentRed = 0x00FF0000;

/// Unmaps the frame at the end of its scope.
class MappedFrame
{
public:
    explicit MappedFrame(const QVideoFrame& frame)
        : m_frame(frame)
        , m_mapped(m_frame.map(QAbstractVideoBuffer::ReadOnly))
    {
    }
    ~MappedFrame()
    {
        if (m_mapped)
            m_frame.unmap();
    }
    Q_DISABLE_COPY(MappedFrame)

    bool isMapped() const { return m_mapped; }
    PixelRows rows() const { return {m_frame.bits(), m_frame.mappedBytes(), m_frame.bytesPerLine()}; }

private:
    QVideoFrame m_frame;
    bool m_mapped;
};

} // namespace

QList<QVideoFrame::PixelFormat>
TransparentVideoSurface::supportedPixelFormats(QAbstractVideoBuffer::HandleType) const
{
    return {QVideoFrame::Format_ARGB32};
}

bool TransparentVideoSurface::start(const QVideoSurfaceFormat& format)
{
    if (isActive()) {
        stop();
        return false;
    }
    if (format.frameWidth() <= 0 || format.frameHeight() <= 0)
        return false;
    return QAbstractVideoSurface::start(format);
}

void TransparentVideoSurface::stop()
{
    m_image.fill(transparentRed);
    QAbstractVideoSurface::stop();
}

bool TransparentVideoSurface::present(const QVideoFrame& frame)
{
    if (!frame.isValid())
        return false;
    const MappedFrame mapped(frame);
    if (!mapped.isMapped())
        return false;
    QImage next = takeBuffer(frame.size());
    if (next.isNull())
        return false;
    qCDebug(lcQuick) << frame.pixelFormat();
    copyRows(mapped.rows(), next);
    m_spare = std::exchange(m_image, next);
    emit frameAvailable();
    return true;
}

QImage TransparentVideoSurface::takeBuffer(const QSize& size)
{
    const bool reusable = m_spare.size() == size && m_spare.isDetached();
    return reusable ? std::exchange(m_spare, QImage()) : QImage(size, QImage::Format_ARGB32);
}

void copyRows(const PixelRows& rows, QImage& image)
{
    const int wanted = image.bytesPerLine();
    const int taken = qBound(0, rows.bytesPerLine, wanted);
    for (int y = 0; y < image.height(); ++y) {
        const qint64 offset = qint64(y) * rows.bytesPerLine;
        const auto held = size_t(qBound<qint64>(0, rows.byteCount - offset, taken));
        uchar* line = image.scanLine(y);
        if (held > 0)
            std::memcpy(line, rows.bits + offset, held);
        std::memset(line + held, 0, size_t(wanted) - held);
    }
}
