// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QSocketNotifier>

#include <memory>

/// While it lives, a signal that asks the process to end (SIGTERM, SIGINT, SIGHUP) ends the event loop
/// instead, as closing the window does, so that what is not on disk yet gets there. The same signal a second
/// time ends the process at once: a script may keep the loop from turning. One at a time, on the GUI thread.
class Termination
{
public:
    Termination();
    ~Termination();
    Q_DISABLE_COPY(Termination)

private:
    std::unique_ptr<QSocketNotifier> m_notifier; // null when there is no pipe: signals then end the process
};
