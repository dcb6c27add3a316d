// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>
#include <private/qquickimage_p.h>
#include <private/qquickpixmapcache_p.h>

#include <optional>

/// The QML type "BoundedImage": Qt's Image, with all that documents know of it, and a bound on the size at
/// which a picture is decoded. A larger one is decoded smaller; none is enlarged, as Image does where it is
/// told a size and keeps the aspect ratio. A vector drawing in a place of given width and height is decoded
/// for that place. While another picture loads, the one before can stay on a stand-in. GUI thread.
class BoundedImage : public QQuickImage
{
    Q_OBJECT
    Q_PROPERTY(QUrl location READ source WRITE setSource)
    Q_PROPERTY(int edge READ edge WRITE setEdge)
    Q_PROPERTY(QQuickImage* standIn READ standIn WRITE setStandIn)

public:
    using QQuickImage::QQuickImage;

    /// Longest edge that is decoded, in pixels. It counts from the next picture on.
    int edge() const { return m_edge; }
    void setEdge(int edge) { m_edge = edge; }
    /// The item that shows the picture before while another one loads; may be null. It has no source of its
    /// own.
    QQuickImage* standIn() const { return m_standIn; }
    void setStandIn(QQuickImage* image) { m_standIn = image; }

protected:
    void load() override;
    void pixmapChange() override;
    void geometryChanged(const QRectF& now, const QRectF& before) override;

private:
    // What the document asks of the loader.
    struct Request
    {
        QSize size;
        QQuickImageProviderOptions options;
    };

    bool isDrawing() const;
    QSize bounded(const QSize& request) const;
    QSize ownBound() const;
    QSize placeBound() const;
    void restoreRequest();

    int m_edge = 8192;
    QPointer<QQuickImage> m_standIn;
    QSize m_placeBound;
    std::optional<Request> m_request;
};
