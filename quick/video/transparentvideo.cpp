// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "quick/video/transparentvideo.h"

#include <QPainter>
#include <QUrl>

namespace {

QString localPath(const QString& name)
{
    return name.startsWith(QLatin1String("file:")) ? QUrl(name).toLocalFile() : name;
}

TransparentVideo::PathResolver& pathResolver()
{
    static TransparentVideo::PathResolver resolver = localPath;
    return resolver;
}

} // namespace

TransparentVideo::TransparentVideo(QQuickItem* parent)
    : QQuickPaintedItem(parent)
{
    m_player.setVideoOutput(&m_surface);
    connect(&m_surface, &TransparentVideoSurface::frameAvailable, this, &TransparentVideo::frameReady);
    connect(&m_player, &QMediaPlayer::mediaStatusChanged, this, &TransparentVideo::mediaStatusChanged);
}

void TransparentVideo::setPathResolver(PathResolver resolver)
{
    pathResolver() = resolver ? std::move(resolver) : localPath;
}

QSize TransparentVideo::paintedSize(const QSize& frame, const QSize& item, FillMode mode)
{
    if (frame.isEmpty() || item.isEmpty())
        return {};
    switch (mode) {
    case None:
        return frame;
    case Stretch:
        return item;
    case PreserveAspectFit:
        return frame.scaled(item, Qt::KeepAspectRatio).expandedTo({1, 1});
    case PreserveAspectCrop:
        return frame.scaled(item, Qt::KeepAspectRatioByExpanding);
    }
    return frame;
}

void TransparentVideo::setSource(const QString& source)
{
    m_source = source;
    const QString path = pathResolver()(source);
    m_player.setMedia(QUrl::fromLocalFile(path));
}

void TransparentVideo::setFillMode(FillMode mode)
{
    m_fillMode = mode;
    update();
}

void TransparentVideo::paint(QPainter* painter)
{
    if (!painter || m_frame.isNull())
        return;
    const QSize size = paintedSize(m_frame.size(), {int(width()), int(height())}, m_fillMode);
    painter->setRenderHint(QPainter::SmoothPixmapTransform, false);
    painter->drawImage(QRect(QPoint(0, 0), size), m_frame);
}

void TransparentVideo::frameReady()
{
    m_frame = m_surface.image();
    update();
}

void TransparentVideo::mediaStatusChanged(QMediaPlayer::MediaStatus status)
{
    if (status != QMediaPlayer::EndOfMedia)
        return;
    if (m_repeat) {
        m_player.play();
        return;
    }
    m_frame.fill(Qt::transparent);
    update();
}

void TransparentVideo::play()
{
    m_player.play();
}

void TransparentVideo::stop()
{
    m_player.stop();
}

void TransparentVideo::pause()
{
    m_player.pause();
}

void TransparentVideo::componentComplete()
{
    QQuickPaintedItem::componentComplete();
    if (m_autoPlay)
        m_player.play();
}
