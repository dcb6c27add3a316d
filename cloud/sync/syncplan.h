// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cloud/dirmap.h"

#include <QSet>

#include <functional>

// What a pull and a push will do, worked out before anything is done. Pure functions of directory maps: the
// project's own ("local"), the cloud's, and the one that both had when they were last synced, if they were.
// A path whose local revision is not the one last synced was edited here and is not published yet.

/// What a pull will do with a project.
struct PullPlan
{
    Dirmap fetch;        ///< files to get from the cloud, with their revisions there
    QStringList remove;  ///< files to delete here, which the cloud has not any more
    QStringList kept;    ///< files that differ but were edited here: left alone
    QStringList refused; ///< paths of the cloud's map that no file of a project can have
    Dirmap local;        ///< the project's map afterwards
    Dirmap synced;       ///< the map last synced, afterwards

    bool changesFiles() const { return !fetch.isEmpty() || !remove.isEmpty(); }
};

/// Plans a pull. Without `synced` the cloud wins everywhere. `exists` tells whether the project has a file of
/// this path on the disk: listed ones that are gone are fetched again, unlisted ones count as edited here.
PullPlan planPull(const Dirmap& local, const std::optional<Dirmap>& synced, const Dirmap& cloud,
                  const std::function<bool(const QString& path)>& exists);

/// The plan without getting `missing`, which stay as they are in all maps of `local` and `synced`.
PullPlan withoutFiles(PullPlan plan, const QSet<QString>& missing, const Dirmap& local,
                      const std::optional<Dirmap>& synced);

/// What a push will do with a project.
struct PushPlan
{
    Dirmap upload;         ///< files to bring to the cloud, with the revisions that they get
    QStringList conflicts; ///< those that have changed on both sides since they were last synced
    Dirmap cloud;          ///< the cloud's map afterwards
    Dirmap local;          ///< the project's map afterwards
    Dirmap synced;         ///< the map last synced, afterwards
};

/// Plans a push. `unlisted` are further files of the project. Where both sides have changed, the cloud keeps
/// those of `theirs`, and of the others the local one wins, with a revision above all others; a file that was
/// only deleted here stays when the cloud has changed it.
PushPlan planPush(const Dirmap& local, const QStringList& unlisted, const std::optional<Dirmap>& synced,
                  const Dirmap& cloud, const QSet<QString>& theirs = {});

/// A plan in words, a line a file.
QString toText(const PullPlan& plan);
QString toText(const PushPlan& plan);
