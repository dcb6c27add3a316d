// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QQuickRenderControl>
#include <QQuickWindow>

#include <memory>

class QOpenGLFramebufferObject;

/// A Quick window without a screen that is drawn by the graphics card, and only when told to. GUI thread.
class OffscreenView
{
public:
    explicit OffscreenView(const QSize& size);
    ~OffscreenView();

    /// The item that everything is drawn below.
    QQuickItem* root() const { return m_window.contentItem(); }
    /// Lays out and draws a frame.
    void draw();
    /// The last frame.
    QImage frame();

private:
    QQuickRenderControl m_control;
    QQuickWindow m_window;
    QOpenGLContext m_context;
    QOffscreenSurface m_surface;
    std::unique_ptr<QOpenGLFramebufferObject> m_buffer;
};
