// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QStringList>

class QQmlEngine;

/// Collects every warning that is logged, so that a test can fail on it. One a process; GUI thread.
class WarningLog : public QObject
{
    Q_OBJECT

public:
    explicit WarningLog(QQmlEngine* engine);
    ~WarningLog() override;

    /// Puts this log before the handler that the test library installs when it starts.
    Q_INVOKABLE void watch();
    /// The warnings since the last call.
    Q_INVOKABLE QStringList take();

private:
    static void handle(QtMsgType type, const QMessageLogContext& context, const QString& message);

    QStringList m_warnings;
};
