// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
#include "warninglog.h"

#include <QQmlEngine>

static WarningLog* theLog = nullptr;
static QtMessageHandler next = nullptr;

WarningLog::WarningLog(QQmlEngine* engine)
    : QObject(engine)
{
    theLog = this;
    watch();
}

WarningLog::~WarningLog()
{
    theLog = nullptr;
}

void WarningLog::watch()
{
    const QtMessageHandler previous = qInstallMessageHandler(handle);
    if (previous != handle)
        next = previous;
}

QStringList WarningLog::take()
{
    return std::exchange(m_warnings, {});
}

void WarningLog::handle(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (theLog && (type == QtWarningMsg || type == QtCriticalMsg))
        theLog->m_warnings += message;
    if (next)
        next(type, context, message);
}
