// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "app/termination.h"

#include <QCoreApplication>

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr int endingSignals[] = {SIGTERM, SIGINT, SIGHUP};

// The pipe from the handler, which may do nothing but write, to the event loop: read end, write end.
int wakeUp[2] = {-1, -1};

void tell(int)
{
    const char mark = 0;
    if (write(wakeUp[1], &mark, 1) < 0)
        _exit(EXIT_FAILURE);
}

void handleWith(void (*handler)(int), int flags)
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = flags;
    for (const int number : endingSignals)
        sigaction(number, &action, nullptr);
}

} // namespace

Termination::Termination()
{
    if (pipe2(wakeUp, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    m_notifier = std::make_unique<QSocketNotifier>(wakeUp[0], QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, QCoreApplication::instance(),
                     &QCoreApplication::quit);
    handleWith(tell, SA_RESTART | int(SA_RESETHAND));
}

Termination::~Termination()
{
    if (!m_notifier)
        return;
    handleWith(SIG_DFL, 0);
    m_notifier.reset();
    close(wakeUp[0]);
    close(wakeUp[1]);
}
