// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVariantMap>
#include <QVector>

#include <optional>

/// A directory map: the files of a project, each with its revision number.
///
/// As text, in the file "dirmap" of the project's folder here and in the cloud: UTF-8, one line a file, which
/// is the path relative to the project, one space, the revision in decimal, a line feed. A path may hold
/// spaces.
struct Dirmap
{
    /// Relative paths, with "/" between their parts; one path may occur more than once.
    QStringList paths;
    /// Revision of the path at the same index.
    QVector<qint32> revisions;

    bool isEmpty() const { return paths.isEmpty(); }
    void append(const QString& path, qint32 revision);
};

inline bool operator==(const Dirmap& a, const Dirmap& b)
{
    return a.paths == b.paths && a.revisions == b.revisions;
}

/// Reads a directory map's text, from a local file or a cloud object. Lines under two characters are skipped,
/// a line without a space has an empty path, a revision that is no number is 0. Nothing when the text exceeds
/// the bounds of limits.h: why goes to `fault`, or without it to the log.
std::optional<Dirmap> parseDirmap(const QByteArray& text, QString* fault = nullptr);

/// The text of a directory map. Nothing, with a line in the log, when a path has a line break in it or the
/// text would exceed the bounds that parseDirmap() keeps.
std::optional<QByteArray> dirmapText(const Dirmap& map);

/// What makes one directory map into another.
struct DirmapChanges
{
    Dirmap changed; ///< lines of the second map that the first one lacks or has at another revision, in order
    QStringList gone; ///< paths that only the first one has, in order
};

/// What makes the map `from` into the map `to`; of a path that occurs more than once in `from` its first line
/// counts. Whoever gets a project compares what it has with what the other side has, whoever sends one the
/// other way round.
DirmapChanges changesBetween(const Dirmap& from, const Dirmap& to);

/// Whether the map `to` takes away the project's document, main.qml, that `from` lists. Such a map is none: a
/// login page of a network's, or what is left of one.
bool losesDocument(const Dirmap& from, const Dirmap& to);

/// Path to revision (int); of a path that occurs more than once the last revision counts.
QVariantMap toVariantMap(const Dirmap& map);

/// The entries of `map` in ascending order of the path; each value is converted to an integer.
Dirmap fromVariantMap(const QVariantMap& map);

/// Path of the directory map of the project in `folder`.
QString dirmapPath(const QString& folder);

/// Reads the directory map of the project in `folder`. Empty when there is none; nothing when there is one
/// that exceeds the bounds or cannot be read.
std::optional<Dirmap> readDirmap(const QString& folder);

/// Writes the directory map of the project in `folder`, whole or not at all. False on failure, logged.
bool writeDirmap(const QString& folder, const Dirmap& map);

/// Deletes the files of the project in `folder` that its directory map lists and that are among the lines of
/// `listf`, and takes them out of the map. A path that is absolute or leads out of `folder`, also through a
/// link, is refused; it and a file that cannot be deleted stay in the map. False when the map cannot be read
/// or written.
bool removeListedFiles(const QString& folder, const QString& listf);
