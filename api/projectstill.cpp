// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/projectstill.h"

#include "api/capi.h"
#include "api/limits.h"
#include "api/logging.h"
#include "base/atomicfile.h"

#include <QBuffer>
#include <QDateTime>
#include <QFileInfo>
#include <QImage>
#include <QQuickItem>
#include <QQuickItemGrabResult>
#include <QtConcurrent>

namespace {

void save(const QImage& image, const QString& file)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (image.isNull() || !image.save(&buffer, "JPG", limits::stillQuality))
        qCWarning(lcApi) << "No still can be made for" << file;
    else
        writeFileAtomically(file, bytes);
}

// Large items are drawn small at once.
QSize drawnSize(const QQuickItem* item)
{
    const QSize size = item->size().toSize();
    const QSize box(limits::stillSide, limits::stillSide);
    return size.boundedTo(size.scaled(box, Qt::KeepAspectRatio));
}

} // namespace

void ProjectStill::setProject(const QString& project)
{
    m_project = project;
    emit projectChanged();
}

QUrl ProjectStill::source() const
{
    const QFileInfo still(file());
    if (!still.isFile())
        return {};
    QUrl url = QUrl::fromLocalFile(still.filePath());
    url.setQuery(QString::number(still.lastModified().toMSecsSinceEpoch()));
    return url;
}

void ProjectStill::take(QQuickItem* item) const
{
    const QString target = file();
    if (!item || target.isEmpty() || drawnSize(item).isEmpty())
        return;
    const QSharedPointer<QQuickItemGrabResult> grab = item->grabToImage(drawnSize(item));
    if (!grab)
        return;
    // The render thread works on the result until it is ready, also when this object has gone: the connection
    // owns it, and goes with it.
    connect(grab.data(), &QQuickItemGrabResult::ready, grab.data(), [grab, target] {
        QtConcurrent::run(save, grab->image().convertToFormat(QImage::Format_RGB32), target);
        grab->disconnect();
    });
}

QString ProjectStill::file() const
{
    const CAPI* capi = m_project.isEmpty() ? nullptr : CAPI::of(this);
    return capi ? capi->workspace().stillOf(m_project) : QString();
}
