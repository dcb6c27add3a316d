// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/outcome.h"

#include <QString>

#include <vector>

class JobControl;

/// A hidden folder in which something is built before it takes its place beside it. It goes with this object,
/// with everything in it; what a killed process leaves, abandoned() finds. Any thread, one at a time.
class StagingFolder
{
public:
    /// None yet.
    StagingFolder() = default;
    StagingFolder(StagingFolder&& other) noexcept;
    StagingFolder& operator=(StagingFolder&&) = delete;
    ~StagingFolder();

    /// Makes it in `parent`; its name is `prefix`, which begins with a dot, and sixteen random digits. Once.
    Outcome create(const QString& parent, const QString& prefix);
    /// The folders of that prefix in `parent` that killed processes left.
    static std::vector<StagingFolder> abandoned(const QString& parent, const QString& prefix);

    QString path() const { return m_path; }
    /// Removes the folder with everything in it; what is still there when `control` is abandoned stays, for
    /// abandoned() to find.
    void remove(const JobControl& control);
    /// Lets the folder stay, for abandoned() to find.
    void leave();
    /// Brings what was written in it, and all else on its file system, to the disk; blocks until then.
    Outcome sync() const;

private:
    StagingFolder(const QString& path, int fd);

    QString m_path;
    int m_fd = -1; // holds the lock
};
