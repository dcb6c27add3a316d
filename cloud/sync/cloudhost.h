// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <functional>

/// What the cloud's workers need of the program. Must outlive them.
class CloudHost
{
public:
    virtual ~CloudHost() = default;

    /// Absolute paths of the folder that holds all projects and of the area of shared projects, always the
    /// same. Any thread.
    virtual QString workDirectory() const = 0;
    virtual QString shareFolder() const = 0;
    /// E-mail of the account that is signed in; empty without. GUI thread.
    virtual QString account() const = 0;
    /// Whether there is a network at all. Any thread.
    virtual bool isConnected() const = 0;
    /// Whether `text` is a document as projects have it. Any thread.
    virtual bool isDocument(const QString& text) const = 0;
    /// Takes the playing project off the screen, in the GUI thread, and calls `done` there. Returns at once;
    /// `done` is not called when the program ends before. Any thread.
    virtual void stopPlayer(const std::function<void()>& done) = 0;
};
