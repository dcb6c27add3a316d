// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/projectfolder.h"

#include "api/logging.h"
#include "api/textencoding.h"
#include "base/atomicfile.h"
#include "cloud/http/webfile.h"

#include <QFileInfo>
#include <QFontDatabase>
#include <QTextStream>
#include <QUrl>

namespace {

const QString libraryFolder = QStringLiteral(":/Nuvex/Components/");

QStringList registeredFamilies()
{
    QStringList families;
    for (int id = 0;; ++id) {
        const QStringList ofFont = QFontDatabase::applicationFontFamilies(id);
        if (ofFont.isEmpty())
            return families;
        families.append(ofFont.constFirst());
    }
}

// Registers one font unless a family of that name is there already; a file that is no font is left out.
void registerFont(const QString& file, QStringList& families)
{
    const int id = QFontDatabase::addApplicationFont(file);
    const QStringList ofFont = id < 0 ? QStringList() : QFontDatabase::applicationFontFamilies(id);
    if (ofFont.isEmpty()) {
        qCWarning(lcApi) << "Not a usable font:" << file;
    } else if (families.contains(ofFont.constFirst())) {
        QFontDatabase::removeApplicationFont(id);
    } else {
        families.append(ofFont.constFirst());
        qCDebug(lcApi) << QFileInfo(file).fileName() << ofFont;
    }
}

} // namespace

QString ProjectFolder::resolved(const QString& path) const
{
    return path.startsWith(QLatin1String("file:")) ? QUrl(path).toLocalFile() : m_dir.absoluteFilePath(path);
}

QString ProjectFolder::resolvedUrl(const QString& path) const
{
    const QString own = m_dir.absoluteFilePath(path);
    if (QFileInfo::exists(own))
        return QUrl::fromLocalFile(own).toString();
    const QString library = libraryFolder + path;
    return QFileInfo::exists(library) ? QUrl::fromLocalFile(library).toString() : path;
}

bool ProjectFolder::exists(const QString& path) const
{
    return QFileInfo::exists(resolved(path));
}

bool ProjectFolder::remove(const QString& path) const
{
    return QFile::remove(resolved(path));
}

bool ProjectFolder::rename(const QString& path, const QString& newName) const
{
    return QFile::rename(resolved(path), resolved(newName));
}

bool ProjectFolder::copy(const QString& src, const QString& dest) const
{
    const QString from = resolved(src);
    const QString to = resolved(dest);
    if (from == to)
        return true;
    if (QFile::exists(to))
        QFile::remove(to);
    makeFolderOf(to);
    return QFile::copy(from, to);
}

QString ProjectFolder::copyToDir(const QString& src, const QString& destDir) const
{
    const QFileInfo source(resolved(src));
    const QString result =
        destDir + QLatin1Char('/') + source.baseName() + QLatin1Char('.') + source.completeSuffix();
    return copy(src, result) ? result : QString();
}

bool ProjectFolder::write(const QString& text, const QString& path) const
{
    const QString target = resolved(path);
    makeFolderOf(target);
    return keepOtherEncoding(target) && writeFileAtomically(target, text.toUtf8());
}

bool ProjectFolder::append(const QString& text, const QString& path) const
{
    const QString target = resolved(path);
    makeFolderOf(target);
    QFile file(target);
    const QByteArray line = text.toUtf8() + '\n';
    return file.open(QIODevice::WriteOnly | QIODevice::Append) && file.write(line) == line.size() &&
           file.flush();
}

QString ProjectFolder::read(const QString& path) const
{
    const QString file = resolved(path);
    if (QFileInfo::exists(file) && !isTextFile(file))
        qCWarning(lcApi) << "Not readable, or too large, as a text file:" << file;
    QTextStream stream(textBytes(file));
    stream.setCodec("UTF-8");
    return stream.readAll();
}

bool ProjectFolder::download(const QString& url, const QString& destDir, const QString& destName) const
{
    m_dir.mkpath(resolved(destDir));
    AtomicFile file(resolved(destDir) + QLatin1Char('/') + destName);
    if (!file.open()) {
        qCDebug(lcApi) << "can't open output file" << file.target();
        return false;
    }
    Webfile transfer(url, {}, nullptr);
    return transfer.get(&file.device()) && file.commit();
}

QStringList ProjectFolder::sources() const
{
    return m_dir.entryList({QStringLiteral("*.qml"), QStringLiteral("*.txt"), QStringLiteral("*.js")},
                           QDir::Files, QDir::Unsorted);
}

QStringList ProjectFolder::fonts(bool load) const
{
    QStringList families = registeredFamilies();
    if (!load)
        return families;
    const QDir folder(m_dir.absolutePath() + QStringLiteral("/fonts"));
    const QStringList files =
        folder.entryList({QStringLiteral("*.otf"), QStringLiteral("*.ttf")}, QDir::Files, QDir::Unsorted);
    for (const QString& file : files)
        registerFont(folder.absoluteFilePath(file), families);
    return families;
}

bool ProjectFolder::makeFolderOf(const QString& resolvedPath) const
{
    return m_dir.mkpath(resolvedPath.left(resolvedPath.lastIndexOf(QLatin1Char('/'))));
}
