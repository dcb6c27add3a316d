// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

class QQuickView;

/// The place on the screen where projects play: the item "thePlayer" of the window's document. GUI thread.
class PlayerView
{
public:
    /// `view` is not owned and must outlive this object; without one nothing is ever shown.
    explicit PlayerView(QQuickView* view)
        : m_view(view)
    {
    }

    /// Whether a project's document is loaded and on the screen.
    bool showsDocument() const;
    /// Takes the project off the screen and makes the engine forget its documents.
    void stop() const;

private:
    QQuickView* m_view;
};
