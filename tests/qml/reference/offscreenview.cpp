// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "offscreenview.h"

#include <QOpenGLFramebufferObject>
#include <QQuickItem>

OffscreenView::OffscreenView(const QSize& size)
    : m_window(&m_control)
{
    QSurfaceFormat format;
    format.setDepthBufferSize(24);
    format.setStencilBufferSize(8);
    m_context.setFormat(format);
    m_context.setShareContext(QOpenGLContext::globalShareContext());
    m_surface.setFormat(format);
    m_surface.create();
    if (!m_context.create() || !m_context.makeCurrent(&m_surface))
        qFatal("no OpenGL");
    m_buffer =
        std::make_unique<QOpenGLFramebufferObject>(size, QOpenGLFramebufferObject::CombinedDepthStencil);
    m_window.setGeometry({{}, size});
    root()->setSize(size);
    m_window.setRenderTarget(m_buffer.get());
    m_control.initialize(&m_context);
}

OffscreenView::~OffscreenView()
{
    m_control.invalidate();
    m_buffer.reset();
}

void OffscreenView::draw()
{
    m_control.polishItems();
    m_control.sync();
    m_control.render();
}

QImage OffscreenView::frame()
{
    return m_buffer->toImage().convertToFormat(QImage::Format_RGB32);
}
