// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/cloudservices.h"

#include "api/importqueue.h"

#include <QFileInfo>

CloudServices::CloudServices(const Deployment& deployment, const Workspace& workspace,
                             const Settings& settings, ImportQueue& imports, QQuickView* view)
    : m_deployment(deployment)
    , m_imports(imports)
    , m_host(workspace, settings, view, deployment)
    , m_store(workspace)
    , m_storage(deployment)
    , m_worker(deployment, m_host)
{
    connect(&m_imports, &ImportQueue::finished, this,
            [this](const QString& archive) { m_store.remove(archive); });
}

StorageFault CloudServices::faultWithoutJob() const
{
    if (!m_deployment.isSet())
        return StorageFault::NotSetUp;
    return m_host.isConnected() ? StorageFault::Missing : StorageFault::NoConnection;
}

void CloudServices::import(const QString& archive)
{
    m_imports.start(archive, QFileInfo(archive).completeBaseName());
}
