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
    /// Takes the document off the screen and makes the QML engine forget compiled documents, so that changed
    /// files are read anew. Whoever calls has it loaded again.
    void unload() const;
    /// Makes the QML engine forget compiled documents. The shell's pages are compiled before and kept: those
    /// that came later would have scripts, and what is shared by them, of their own. While an editor is open
    /// it waits until that is left.
    void forgetCompiled() const;

private:
    QQuickView* m_view;
};
