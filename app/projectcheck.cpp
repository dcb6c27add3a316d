// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "app/projectcheck.h"

#include "api/projectfolder.h"
#include "api/workspace.h"
#include "app/qmlcontext.h"
#include "cloud/deployment.h"
#include "qmldoc/projectreferences.h"

#include <QDirIterator>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QTextStream>

namespace {

QString message(const QString& file, int line, const QString& text)
{
    return QStringLiteral("%1:%2: %3").arg(file).arg(line).arg(text);
}

QStringList compileErrors(QQmlEngine& engine, const QString& file)
{
    QStringList errors;
    const QQmlComponent component(&engine, QUrl::fromLocalFile(file));
    for (const QQmlError& error : component.errors())
        errors.append(message(error.url().toLocalFile(), error.line(), error.description()));
    return errors;
}

bool isThere(const ProjectFolder& project, const QString& file, const QString& name)
{
    const QUrl url(name);
    if (name.isEmpty() || url.scheme().startsWith(QLatin1String("http")))
        return true;
    if (url.scheme() == QLatin1String("qrc"))
        return QFileInfo::exists(QLatin1Char(':') + url.path());
    const QString besideDocument = QFileInfo(file).dir().absoluteFilePath(name);
    return QFileInfo::exists(besideDocument) || project.resolvedUrl(name) != name || project.exists(name);
}

QStringList missingReferences(const ProjectFolder& project, const QString& file)
{
    QStringList missing;
    const QStringList families = QFontDatabase().families();
    for (const ProjectReference& reference : projectReferences(project.read(file))) {
        if (reference.kind == ProjectReference::Font && !families.contains(reference.name))
            missing.append(message(file, reference.line, "no font of the family \"" + reference.name + '"'));
        else if (reference.kind == ProjectReference::Media && !isThere(project, file, reference.name))
            missing.append(message(file, reference.line, "no file \"" + reference.name + '"'));
    }
    return missing;
}

QString projectFolder(const QString& project)
{
    const QString named = Workspace(Workspace::defaultRoot()).workDirectory() + '/' + project;
    return QDir::isRelativePath(project) && QFileInfo(named).isDir() ? named : QDir(project).absolutePath();
}

} // namespace

QStringList checkProject(QQmlEngine& engine, const QString& folder)
{
    const ProjectFolder project(folder);
    if (!project.exists(QStringLiteral("main.qml")))
        return {
            message(project.resolved(QStringLiteral("main.qml")), 1, QStringLiteral("the file is missing"))};
    project.fonts(true);
    QStringList problems;
    QDirIterator documents(folder, {QStringLiteral("*.qml")}, QDir::Files, QDirIterator::Subdirectories);
    while (documents.hasNext()) {
        const QString file = documents.next();
        problems += compileErrors(engine, file) + missingReferences(project, file);
    }
    problems.removeDuplicates();
    problems.sort();
    return problems;
}

int runProjectCheck(int& argc, char** argv, const Options& options)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    setApplicationNames();
    loadProgramFonts();
    QQmlEngine engine;
    prepareEngine(engine, {});
    const QStringList problems = checkProject(engine, projectFolder(options.checkProject));
    for (const QString& problem : problems)
        QTextStream(stdout) << problem << '\n';
    return problems.isEmpty() ? 0 : 1;
}
