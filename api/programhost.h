// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "api/playerview.h"
#include "cloud/sync/cloudhost.h"

#include <QObject>

class Settings;
class Workspace;
struct Deployment;

/// The program as the cloud's workers see it. What they ask of the GUI thread is posted there. GUI thread,
/// besides the interface's members for any thread.
class ProgramHost : public QObject, public CloudHost
{
    Q_OBJECT

public:
    /// All must outlive this object, `view` may be null.
    ProgramHost(const Workspace& workspace, const Settings& settings, QQuickView* view,
                const Deployment& deployment);

    QString workDirectory() const override { return m_workDirectory; }
    QString shareFolder() const override { return m_shareFolder; }
    QString account() const override;
    /// A cloud on this computer needs no network.
    bool isConnected() const override;
    bool isDocument(const QString& text) const override;
    void stopPlayer(const std::function<void()>& done) override;

private:
    const QString m_workDirectory;
    const QString m_shareFolder;
    const Settings& m_settings;
    const PlayerView m_player;
    const bool m_cloudIsHere;
};
