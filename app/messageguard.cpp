// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "app/messageguard.h"

#include "app/limits.h"

#include <QRegularExpression>

namespace {

QtMessageHandler previousHandler = nullptr;

void passOn(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    previousHandler(type, context, loggable(message));
}

} // namespace

// A signature goes to the line's end: libraries that take "%2B" in it for a place to fill in write words
// there.
QString loggable(const QString& message)
{
    static const QRegularExpression secret(
        QStringLiteral("([?&](?:auth|key|access_token)=)[^&\\s\"'#]+|([?&]Signature=)[^\\n]*"));
    QString text = message.left(limits::messageLength);
    if (text.size() < message.size())
        text += QStringLiteral("... (%1 characters)").arg(message.size());
    if (text.contains(QLatin1Char('=')))
        text.replace(secret, QStringLiteral("\\1\\2..."));
    return text;
}

void guardMessages()
{
    previousHandler = qInstallMessageHandler(passOn);
}
