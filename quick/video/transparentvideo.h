// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "quick/video/transparentvideosurface.h"

#include <QColor>
#include <QMediaPlayer>
#include <QQuickPaintedItem>

#include <functional>

/// The QML type "TransparentVideo": plays a video file and shows what lies beneath wherever the video is
/// transparent. A file that cannot be played shows nothing. GUI thread.
class TransparentVideo : public QQuickPaintedItem
{
    Q_OBJECT
    Q_PROPERTY(QString source READ source WRITE setSource)
    Q_PROPERTY(bool repeat READ repeat WRITE setRepeat)
    Q_PROPERTY(bool autoPlay READ autoPlay WRITE setAutoPlay)
    Q_PROPERTY(QColor transparentColor READ transparentColor WRITE setTransparentColor)
    Q_PROPERTY(FillMode fillMode READ fillMode WRITE setFillMode)

public:
    /// How the frame is sized. Its top-left corner is the item's in every mode.
    enum FillMode {
        None = 0,              ///< its own size
        Stretch = 1,           ///< the item's size, whatever that does to the aspect ratio
        PreserveAspectFit = 2, ///< as large as fits inside the item
        PreserveAspectCrop = 3 ///< as small as covers the item
    };
    Q_ENUM(FillMode)

    /// Turns a file name as QML writes it into a local path.
    using PathResolver = std::function<QString(const QString&)>;

    explicit TransparentVideo(QQuickItem* parent = nullptr);

    /// Sets how all items find their files from now on. Until then, and with an empty `resolver`, a "file:"
    /// URL is its local file and any other name stays as it is.
    static void setPathResolver(PathResolver resolver);

    /// Size at which a frame of size `frame` is painted into an item of size `item`; empty when either is.
    static QSize paintedSize(const QSize& frame, const QSize& item, FillMode mode);

    QString source() const { return m_source; }
    /// Sets the file to play, a name that the path resolver understands. Playback does not start by this.
    void setSource(const QString& source);
    /// Whether the video starts again at its end; otherwise the item turns transparent there.
    bool repeat() const { return m_repeat; }
    void setRepeat(bool repeat) { m_repeat = repeat; }
    /// Whether playback starts as soon as the item is complete.
    bool autoPlay() const { return m_autoPlay; }
    void setAutoPlay(bool autoPlay) { m_autoPlay = autoPlay; }
    /// Kept for documents that set it; frames bring their own alpha and no colour is removed.
    QColor transparentColor() const { return m_transparentColor; }
    void setTransparentColor(const QColor& color) { m_transparentColor = color; }
    FillMode fillMode() const { return m_fillMode; }
    void setFillMode(FillMode mode);

    void paint(QPainter* painter) override;

    Q_INVOKABLE void play();
    /// Stops; the last frame stays.
    Q_INVOKABLE void stop();
    /// Pauses; the last frame stays.
    Q_INVOKABLE void pause();

protected:
    void componentComplete() override;

public slots:
    /// Takes over the surface's frame and repaints.
    void frameReady();
    /// Acts on the end of the media, by repeat().
    void mediaStatusChanged(QMediaPlayer::MediaStatus status);

private:
    TransparentVideoSurface m_surface; // outlives the player, which writes into it
    QMediaPlayer m_player;
    QImage m_frame;
    QString m_source;
    bool m_repeat = false;
    bool m_autoPlay = false;
    QColor m_transparentColor = QColor(Qt::red);
    FillMode m_fillMode = PreserveAspectFit;
};
