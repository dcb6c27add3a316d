// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

struct xcb_connection_t;

/// A connection of our own to the X server, beside the one of the application object.
///
/// A bare X server starts anew, or ends, when its last client leaves. A program that restarts holds this
/// connection from before its first application object until it ends, so a restart in place never leaves the
/// server without a client; and the process that replaces this one inherits it and lets go of it once it has
/// its own. A server that is not there yet is waited for, for limits::displayWait at most. Without an X
/// server it does nothing.
class DisplayHold
{
public:
    DisplayHold();
    ~DisplayHold();
    Q_DISABLE_COPY(DisplayHold)

private:
    xcb_connection_t* m_connection = nullptr;
};
