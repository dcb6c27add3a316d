// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "pinned.h"

#include <QNetworkProxy>
#include <QRandomGenerator>

#include <ctime>
#include <new>
#include <sys/syscall.h>
#include <sys/time.h>
#include <unistd.h>

static constexpr time_t now = 1773482916;

// The program's own definitions come before those of the C library, also for the libraries.
extern "C" int gettimeofday(timeval* time, void*) noexcept
{
    *time = {now, 0};
    return 0;
}

extern "C" time_t time(time_t* result) noexcept
{
    return result ? *result = now : now;
}

extern "C" int clock_gettime(clockid_t clock, timespec* time) noexcept
{
    if (clock != CLOCK_REALTIME)
        return int(syscall(SYS_clock_gettime, clock, time));
    *time = {now, 0};
    return 0;
}

void pinned::restartRandomNumbers()
{
    new (QRandomGenerator::global()) QRandomGenerator(1);
}

void pinned::cutNetwork()
{
    // Nothing listens on the port of the TCP multiplexer.
    QNetworkProxy::setApplicationProxy({QNetworkProxy::HttpProxy, QStringLiteral("127.0.0.1"), 1});
}

SteppedAnimations::SteppedAnimations()
{
    install();
    m_unrest.setStartValue(0);
    m_unrest.setEndValue(1);
    m_unrest.setDuration(1000);
    m_unrest.setLoopCount(-1);
    m_unrest.start();
}

void SteppedAnimations::advance()
{
    m_elapsed += stepMilliseconds;
    advanceAnimation(m_elapsed);
}
