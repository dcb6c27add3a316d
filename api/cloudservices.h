// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "api/programhost.h"
#include "api/storefolder.h"
#include "cloud/storage/gcloud.h"
#include "cloud/sync/sharedfolderthread.h"

class ImportQueue;

/// The program's part in the customer's cloud: the worker that keeps projects in step, a storage client for
/// the GUI thread, and the way of an archive from the store into the workspace. GUI thread.
class CloudServices : public QObject
{
    Q_OBJECT

public:
    /// Finishes or takes back what was going on in projects when the program last ended. All must outlive
    /// this object, `view` may be null. Without a deployment that is set all it offers fails in words.
    CloudServices(const Deployment& deployment, const Workspace& workspace, const Settings& settings,
                  ImportQueue& imports, QQuickView* view);
    Q_DISABLE_COPY(CloudServices)

    const Deployment& deployment() const { return m_deployment; }
    SharedFolderThread& worker() { return m_worker; }
    /// Its members wait, in nested event loops.
    GCloud& storage() { return m_storage; }
    StoreFolder& store() { return m_store; }
    /// E-mail of the account that is signed in; empty without.
    QString account() const { return m_host.account(); }

    /// Why the worker had no job to give: there is no cloud, no network, or no such project.
    StorageFault faultWithoutJob() const;
    /// Imports an archive of store() into the work directory, in the background, and removes it then. A
    /// project without a folder in the archive gets one of the archive's name.
    void import(const QString& archive);

private:
    const Deployment m_deployment;
    ImportQueue& m_imports;
    ProgramHost m_host;
    StoreFolder m_store;
    GCloud m_storage;
    SharedFolderThread m_worker;
};
