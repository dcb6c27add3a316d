// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "quick/picture/boundedimage.h"

#include <QImageReader>
#include <QQmlFile>
#include <private/qquickimage_p_p.h>

#include <algorithm>

namespace {

// The smallest place that drawings are decoded for. From there on it doubles, so that an item that grows does
// not load its drawing all the time.
constexpr int smallestPlace = 64;

QQuickImagePrivate* partsOf(QQuickImage* image)
{
    return static_cast<QQuickImagePrivate*>(QQuickItemPrivate::get(image));
}

} // namespace

// The loader takes its orders from members of Image. They have to say again what the document said before
// anybody can look, which is when the picture arrives or else when load() returns.
void BoundedImage::load()
{
    auto* parts = partsOf(this);
    if (m_standIn && status() == Ready)
        partsOf(m_standIn)->setPixmap(parts->pix);
    m_placeBound = placeBound();
    m_request = {parts->sourcesize, parts->providerOptions};
    parts->sourcesize = bounded(m_request->size);
    if (!m_request->size.isValid()) {
        // With these the loader would enlarge; a drawing is to be enlarged, as it is.
        parts->providerOptions.setPreserveAspectRatioFit(isDrawing());
        parts->providerOptions.setPreserveAspectRatioCrop(false);
    }
    QQuickImage::load();
    restoreRequest();
}

void BoundedImage::restoreRequest()
{
    if (!m_request)
        return;
    partsOf(this)->sourcesize = m_request->size;
    partsOf(this)->providerOptions = m_request->options;
    m_request.reset();
}

void BoundedImage::pixmapChange()
{
    restoreRequest();
    QQuickImage::pixmapChange();
    if (m_standIn)
        partsOf(m_standIn)->setPixmap(QQuickPixmap());
}

void BoundedImage::geometryChanged(const QRectF& now, const QRectF& before)
{
    QQuickImage::geometryChanged(now, before);
    if (isComponentComplete() && isDrawing() && placeBound() != m_placeBound && !m_request)
        load();
}

bool BoundedImage::isDrawing() const
{
    const QString path = source().path();
    return path.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive) ||
           path.endsWith(QLatin1String(".svgz"), Qt::CaseInsensitive);
}

// The size to decode at where the document asks for `request`.
QSize BoundedImage::bounded(const QSize& request) const
{
    const QSize limit(m_edge, m_edge);
    if (request.isValid())
        return request.boundedTo(limit);
    return isDrawing() ? ownBound().boundedTo(limit) : limit;
}

// The bound of a drawing; none, an invalid size, lets it be as large as it says.
QSize BoundedImage::ownBound() const
{
    if (m_placeBound.isValid())
        return m_placeBound;
    const QSize natural = QImageReader(QQmlFile::urlToLocalFileOrQrc(source())).size();
    return natural.width() > m_edge || natural.height() > m_edge ? natural : QSize();
}

// The bound of a drawing in a place of given size; invalid where the place has the size of the drawing.
QSize BoundedImage::placeBound() const
{
    if (!widthValid() || !heightValid())
        return QSize();
    int step = smallestPlace;
    while (step < std::min<qreal>(m_edge, std::max(width(), height())))
        step *= 2;
    return {step, step};
}
