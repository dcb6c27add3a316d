// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "qmldoc/endlessloading.h"

#include "qmldoc/limits.h"
#include "qmldoc/outline.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QSet>
#include <QUrl>

#include <algorithm>

namespace {

using Member = Outline::Member;

// Another document that is made with this one.
struct Load
{
    QString file;
    int offset;      // of the object, in the source
    bool isByLoader; // else as a type
};

// The file that a loader without a switch names; empty when it names none.
QString loadedFile(const Outline& outline, int loader, const QUrl& base)
{
    QString file;
    for (int i = loader; (i = outline.nextProperty(loader, i)) >= 0;) {
        const Member& property = outline.member(i);
        const QString name = outline.name(property).trimmed();
        if (name == QLatin1String("active"))
            return QString();
        if (name != QLatin1String("source"))
            continue;
        const QString value = SyntaxTree::stringLiteral(
            outline.text().mid(property.valueBegin, property.end - property.valueBegin));
        file = value.isEmpty() ? QString() : base.resolved(QUrl(value)).toLocalFile();
    }
    return file;
}

// The object is made whenever the document is: nothing but such objects holds it.
bool isSure(const Outline& outline, int object)
{
    const Member& member = outline.member(object);
    const QString type = outline.name(member);
    const bool makesAtWill = type == QLatin1String("Component") || type == QLatin1String("Repeater") ||
                             type == QLatin1String("Instantiator") || type.endsWith(QLatin1String("View"));
    return member.kind == Member::Object && !makesAtWill &&
           (member.parent < 0 || isSure(outline, member.parent));
}

// The file that an object is made from; empty when that is none of the folder's.
QString fileOfType(const Outline& outline, int object, const QDir& folder, QHash<QString, QString>& known)
{
    const QString type = outline.name(outline.member(object));
    const auto found = known.constFind(type);
    if (found != known.cend())
        return *found;
    return *known.insert(type, QFileInfo(folder, type + QLatin1String(".qml")).canonicalFilePath());
}

QVector<Load> loads(const Outline& outline, const QString& file)
{
    const QUrl base = QUrl::fromLocalFile(file);
    const QDir folder = QFileInfo(file).dir();
    QHash<QString, QString> types;
    QVector<Load> found;
    for (int i = 0; i < int(outline.members().size()); ++i) {
        const Member& member = outline.member(i);
        if (member.kind != Member::Object)
            continue;
        const bool isLoader = outline.name(member) == QLatin1String("Loader");
        const QString loaded = isLoader ? QFileInfo(loadedFile(outline, i, base)).canonicalFilePath()
                                        : fileOfType(outline, i, folder, types);
        if (!loaded.isEmpty() && isSure(outline, i))
            found.append({loaded, member.begin, isLoader});
    }
    return found;
}

QString textOf(const QString& path)
{
    QFile file(path);
    const bool isRead =
        QFileInfo(path).isFile() && file.size() <= limits::maxSourceLength && file.open(QIODevice::ReadOnly);
    return isRead ? QString::fromUtf8(file.readAll()) : QString();
}

// Whether `load`, the last of the `way` of files that are being loaded, comes back to one of them by a
// loader. Types alone do not count: what a file's own type seems to be may be one of a module that it
// imports. `done` are the files that do not.
bool isEndless(const Load& load, QVector<Load>& way, QSet<QString>& done)
{
    const auto again =
        std::find_if(way.begin(), way.end(), [&](const Load& other) { return other.file == load.file; });
    if (again != way.end())
        return load.isByLoader ||
               std::any_of(again + 1, way.end(), [](const Load& l) { return l.isByLoader; });
    if (done.contains(load.file) || done.size() + way.size() >= limits::maxFollowedFiles)
        return false;
    way.append(load);
    const QVector<Load> next = loads(Outline(textOf(load.file)), load.file);
    const bool isFound = std::any_of(next.cbegin(), next.cend(),
                                     [&](const Load& other) { return isEndless(other, way, done); });
    way.removeLast();
    done.insert(load.file);
    return isFound;
}

} // namespace

QVector<Fault> endlessLoading(const Outline& outline, const QString& file)
{
    const QFileInfo info(file);
    QVector<Load> way{{info.exists() ? info.canonicalFilePath() : file, 0, false}};
    QSet<QString> done;
    QVector<Fault> faults;
    for (const Load& load : loads(outline, way.constFirst().file)) {
        if (isEndless(load, way, done))
            faults.append({textPlace(outline.text(), load.offset),
                           QCoreApplication::translate("DocumentFaults", "%1 loads itself again, without end")
                               .arg(QFileInfo(load.file).fileName())});
    }
    return faults;
}
