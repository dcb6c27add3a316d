// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "app/logfile.h"

#include "app/limits.h"

#include <QDateTime>

#include <cstdio>

namespace {

LogFile* capturing = nullptr;
QtMessageHandler previousHandler = nullptr;

void passOn(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    capturing->write(qFormatLogMessage(type, context, message));
    previousHandler(type, context, message);
}

} // namespace

LogFile::LogFile(const QString& path)
    : m_file(path)
{
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::Append)) {
        std::fprintf(stderr, "The log file %s cannot be opened: %s\n", qPrintable(path),
                     qPrintable(m_file.errorString()));
        return;
    }
    write(QStringLiteral("App started"));
}

LogFile::~LogFile()
{
    if (capturing == this) {
        qInstallMessageHandler(previousHandler);
        capturing = nullptr;
    }
}

void LogFile::write(const QString& line)
{
    const QMutexLocker lock(&m_mutex);
    if (!m_file.isOpen())
        return;
    m_file.write(QDateTime::currentDateTime().toString(Qt::ISODateWithMs).toUtf8() + ' ' + line.toUtf8() +
                 '\n');
    m_file.flush();
    if (m_file.size() > limits::logFileBytes)
        startNewFile();
}

void LogFile::captureMessages()
{
    capturing = this;
    previousHandler = qInstallMessageHandler(passOn);
}

void LogFile::startNewFile()
{
    const QString path = m_file.fileName();
    const QString older = path + QStringLiteral(".1");
    m_file.close();
    QFile::remove(older);
    QFile::rename(path, older);
    m_file.open(QIODevice::WriteOnly | QIODevice::Append);
}
