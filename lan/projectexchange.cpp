// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "lan/projectexchange.h"

#include "lan/limits.h"
#include "lan/localserver.h"
#include "lan/logging.h"
#include "lan/threadconnection.h"

ProjectExchange::ProjectExchange(QObject* parent)
    : QObject(parent)
{
    m_progressTimer.setInterval(limits::exchangeProgressInterval);
    connect(&m_progressTimer, &QTimer::timeout, this, &ProjectExchange::updateProgress);
}

ProjectExchange::~ProjectExchange()
{
    cancel();
    if (m_thread)
        m_thread->wait();
}

bool ProjectExchange::start(const LocalServer* server, const QString& player, Direction direction,
                            const QString& project)
{
    if (isRunning())
        return false;
    m_direction = direction;
    m_player = player;
    m_project = project;
    m_progress = {};
    m_succeeded = false;
    m_connection = server ? server->findConnection(player) : nullptr;
    if (!m_connection || player.isEmpty())
        return refuse(tr("%1 is not connected.").arg(player));
    if (project.contains(QLatin1Char('/')) || !WorkFolder::faultForPeers(project).isEmpty())
        return refuse(tr("“%1” is no name of a project.").arg(project));
    m_outcome.clear();
    m_functions = std::make_unique<LocalServerFunctions>(*m_connection);
    m_thread.reset(QThread::create([this] {
        m_result = isSending() ? m_functions->shareUp(m_project) : m_functions->shareDown(m_project);
    }));
    connect(m_thread.get(), &QThread::finished, this, &ProjectExchange::finish);
    m_thread->start();
    m_progressTimer.start();
    emit changed();
    return true;
}

void ProjectExchange::cancel()
{
    if (m_functions)
        m_functions->cancel();
}

void ProjectExchange::updateProgress()
{
    m_progress = m_functions->progress();
    emit changed();
}

void ProjectExchange::finish()
{
    m_thread->wait(); // it is about to return
    m_progressTimer.stop();
    m_progress = m_functions->progress();
    m_succeeded = bool(m_result);
    m_outcome = describe(m_result);
    m_thread.reset();
    m_functions.reset();
    m_connection.reset();
    qCInfo(lcLan).noquote() << m_project << '-' << m_outcome;
    emit changed();
    emit finished();
}

bool ProjectExchange::refuse(const QString& outcome)
{
    m_outcome = outcome;
    qCWarning(lcLan).noquote() << outcome;
    emit changed();
    emit finished();
    return false;
}

QString ProjectExchange::describe(const Outcome& outcome) const
{
    if (!outcome)
        return (isSending() ? tr("Not all was sent to %1: %2.") : tr("Not all came from %1: %2."))
            .arg(m_player, outcome.reason());
    const int count = m_functions->movedFiles();
    if (count == 0)
        return tr("%1 and this player have the same revisions.").arg(m_player);
    const QString files = count == 1 ? tr("One file") : tr("%1 files").arg(count);
    return (isSending() ? tr("%1 sent to %2.") : tr("%1 fetched from %2.")).arg(files, m_player);
}
