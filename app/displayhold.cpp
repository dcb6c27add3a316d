// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "app/displayhold.h"

#include "app/limits.h"

#include <QByteArray>
#include <QDeadlineTimer>
#include <QThread>

#include <cstdlib>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <xcb/xcb.h>

namespace {

bool platformIsX11()
{
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    return !qEnvironmentVariableIsEmpty("DISPLAY") && (platform.isEmpty() || platform.startsWith("xcb"));
}

// A connection that the server has answered on; null when there is none yet.
xcb_connection_t* connectToServer()
{
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    std::free(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
    if (xcb_connection_has_error(connection) == 0)
        return connection;
    xcb_disconnect(connection);
    return nullptr;
}

// Tells the process that replaces this one which of its open files is the connection that it inherits.
constexpr const char* inheritedConnection = "NUVEX_DISPLAY_CONNECTION";

bool isSocket(int file)
{
    struct stat status = {};
    return fstat(file, &status) == 0 && S_ISSOCK(status.st_mode);
}

void releaseInherited()
{
    bool given = false;
    const int file = qEnvironmentVariableIntValue(inheritedConnection, &given);
    if (given && isSocket(file))
        close(file);
    qunsetenv(inheritedConnection);
}

void letInherit(xcb_connection_t* connection)
{
    const int file = xcb_get_file_descriptor(connection);
    fcntl(file, F_SETFD, 0);
    qputenv(inheritedConnection, QByteArray::number(file));
}

// Leaves the server's end open as long as a process that inherited it lives: xcb_disconnect() would shut it
// down for both, before the other has a connection of its own.
void letGo(xcb_connection_t* connection)
{
    const int nothing = open("/dev/null", O_RDWR | O_CLOEXEC);
    dup2(nothing, xcb_get_file_descriptor(connection));
    close(nothing);
    xcb_disconnect(connection);
}

} // namespace

DisplayHold::DisplayHold()
{
    if (!platformIsX11())
        return;
    const QDeadlineTimer deadline(limits::displayWait);
    while (!(m_connection = connectToServer()) && !deadline.hasExpired())
        QThread::msleep(std::chrono::milliseconds(limits::displayRetry).count());
    releaseInherited();
    if (m_connection)
        letInherit(m_connection);
}

DisplayHold::~DisplayHold()
{
    if (!m_connection)
        return;
    qunsetenv(inheritedConnection);
    letGo(m_connection);
}
