// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cloud/sync/projectstate.h"
#include "cloud/sync/swapjournal.h"

#include <QSet>

/// A change of a project's files that happens as a whole, also when the program or the computer stops in
/// between: prepare(), fetch, commit(), carryOut().
///
/// New files are first fetched beside the old ones, under their names with "_temp" appended, or with the
/// records where that is not to be had. What is going on stands in the project's journal. Used by one thread.
class ProjectSwap
{
public:
    /// Goes on with what the journal says.
    explicit ProjectSwap(const ProjectPlace& place);

    /// Carries out a change that was decided for and not finished. Goes before anything else. False when it
    /// cannot be done now.
    bool finish();

    /// Whether a file can take its place once the files `removed` are gone: no link, and no other file, is on
    /// the way or in its place.
    bool canTakePlace(const QString& path, const QSet<QString>& removed) const;
    /// Announces that the files of `wanted` will be fetched and makes the folders to fetch them to; none of
    /// them is to use the name of one of `taken`. What was fetched for another announcement is kept when it
    /// is the same, else removed. False on failure.
    bool prepare(const Dirmap& wanted, const QSet<QString>& taken);
    /// Where a file that was announced is to be fetched to.
    QString temporaryPath(const QString& path) const;
    /// Whether it is there already.
    bool isFetched(const QString& path) const { return m_journal.files.value(path).fetched; }
    /// Takes note of a file that is there now.
    void setFetched(const QString& path) { m_journal.files[path].fetched = true; }
    /// Leaves what is there for a later announcement, until the program ends.
    void leave() { writeJournal(); }
    /// Removes what was fetched, and the announcement.
    void rollBack();

    /// Decides for the change: the files that are there take their places, those of `removed` go, `local`
    /// becomes the project's map, `record` its record. False, and nothing is decided, on failure.
    bool commit(const QStringList& removed, const Dirmap& local, const SyncRecord& record);
    /// Carries out what was decided. False when something could not be done; finish() tries again.
    bool carryOut();

private:
    bool writeJournal();
    QString fileAbove(const QString& path) const;
    bool makeFolders() const;
    SwapFile announced(const QString& path, qint32 revision, const QSet<QString>& taken) const;
    QString temporaryName(const QString& path, const QSet<QString>& taken) const;
    QString absolute(const QString& temporary) const;
    void removeTemporary(const QString& temporary) const;
    void removeFile(const QString& path) const;
    bool moveFiles() const;
    bool writeMaps() const;

    ProjectPlace m_place;
    SwapJournal m_journal;
};

/// Finishes what was decided for, and takes back what was announced, in any project when the program last
/// ended. Goes before projects are used.
void recoverProjects(const QString& workFolder, const QString& recordFolder);

/// Whether there is anything for recoverProjects() to do.
bool hasJournals(const QString& recordFolder);
