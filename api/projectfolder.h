// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDir>
#include <QStringList>

/// The current project folder and the operations on its files. GUI thread.
///
/// Path rule of every method that takes a path: one that starts with "file:" is a URL of a local file; any
/// other is relative to the project folder, unless it is absolute. Text is UTF-8 without byte-order mark.
class ProjectFolder
{
public:
    explicit ProjectFolder(const QString& path)
        : m_dir(path)
    {
    }

    /// Moves on to another project folder, which need not exist.
    void set(const QString& path) { m_dir.setPath(path); }
    /// The folder's path as set.
    QString path() const { return m_dir.path(); }
    /// The folder's absolute path.
    QString absolutePath() const { return m_dir.absolutePath(); }
    /// Last component of the folder's path.
    QString name() const { return m_dir.dirName(); }

    /// `path` by the path rule.
    QString resolved(const QString& path) const;
    /// URL of a media path for a component: the project's own file if it exists, else the component library's
    /// resource if that exists, else `path` unchanged.
    QString resolvedUrl(const QString& path) const;

    bool exists(const QString& path) const;
    bool remove(const QString& path) const;
    /// A relative `newName` lands in the project folder, not beside the file.
    bool rename(const QString& path, const QString& newName) const;
    /// Copies over an existing `dest`, which is removed first. The same file twice is a success without a
    /// copy.
    bool copy(const QString& src, const QString& dest) const;
    /// Copies `src` into the folder `destDir` under its own name. Returns "destDir/name.suffix", where a file
    /// without suffix keeps the dot; "" on failure.
    QString copyToDir(const QString& src, const QString& destDir) const;

    /// Puts `text` in place of the file, whole or not at all; makes its folder. A file that is not UTF-8, of
    /// which read() has lost something, is kept beside it (keepOtherEncoding()).
    bool write(const QString& text, const QString& path) const;
    /// Appends `text` and a line end; makes the file's folder.
    bool append(const QString& text, const QString& path) const;
    /// The file's text; "" when it cannot be read or is larger than a text file may be.
    QString read(const QString& path) const;

    /// Downloads `url` to `destDir`/`destName`. Blocks while events are processed, which may begin another
    /// download of the same file; it appears whole, from one of them, or not at all.
    bool download(const QString& url, const QString& destDir, const QString& destName) const;

    /// File names of the project's .qml, .txt and .js files, unsorted.
    QStringList sources() const;

    /// First families of the fonts registered with the program, after registering the project's own
    /// ("fonts/*.otf", "fonts/*.ttf") when `load` is true. No family is registered twice.
    QStringList fonts(bool load) const;

private:
    bool makeFolderOf(const QString& resolvedPath) const;

    QDir m_dir;
};
