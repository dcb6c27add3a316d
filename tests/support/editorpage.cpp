// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "tests/support/editorpage.h"

#include "cloud/deployment.h"

#include <QDir>
#include <QFile>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlExpression>
#include <QQuickItem>

namespace {

const QByteArray probe = R"(
import QtQuick 2.15
import Nuvex.Editor 1.0

QtObject {
    property var desk

    function disorder() {
        const told = inOrder(Ejs.map);
        const parsed = inOrder(CAPI.parseAndGetMap(CAPI.editedSourceCode()));
        const wrong = told.concat(parsed).findIndex((record, i) => record !== parsed[i]);
        if (told.join() !== parsed.join())
            return told[wrong] + "\nbut\n" + parsed[wrong];
        return desk.live.canMake(CAPI.editedSourceCode()) ? "" : desk.live.faults[0].message;
    }

    function inOrder(map) {
        return map.filter(record => record.plast > record.pfirst).sort((one, other) => one.pfirst - other.pfirst)
                  .map(record => [record.typename, record.pfirst, record.pfirstL, record.plast, told(record.properties)])
                  .map(entry => JSON.stringify(entry));
    }

    function told(properties) {
        return Object.keys(properties).sort().map(name => [name, properties[name].pfirst, properties[name].plast,
                                                           properties[name].value]);
    }
}
)";

bool useHome(const QString& folder)
{
    return qputenv("XDG_DATA_HOME", QFile::encodeName(folder)) &&
           qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder));
}

void copyFolder(const QString& from, const QString& to)
{
    QDir().mkpath(to);
    const QFileInfoList entries = QDir(from).entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot);
    for (const QFileInfo& entry : entries) {
        const QString target = to + '/' + entry.fileName();
        if (entry.isDir())
            copyFolder(entry.filePath(), target);
        else
            QFile::copy(entry.filePath(), target);
    }
}

} // namespace

EditorPage::EditorPage(const QString& source, const QString& media)
    : m_isHome(useHome(m_home.path()))
{
    m_capi.createProject(QStringLiteral("Test"));
    m_capi.setBaseFolder(QStringLiteral("Test"));
    if (!media.isEmpty())
        copyFolder(media, m_capi.resolvedPath(QString()));
    m_capi.writeToFile(source, QStringLiteral("main.qml"));
    m_capi.createEditorFile();
    prepareEngine(*m_view.engine(), Deployment());
    m_context = std::make_unique<QmlContext>(*m_view.engine(), m_capi, QSize(1280, 720), 96);
    m_view.resize(1280, 720);
    m_view.setResizeMode(QQuickView::SizeRootObjectToView);
    m_view.setSource(QUrl(QStringLiteral("qrc:/Nuvex/PlayerQML/RADEditorPage.qml")));
    m_view.show();
    QQmlComponent component(m_view.engine());
    component.setData(probe, QUrl());
    m_probe.reset(component.create());
    m_probe->setProperty("desk", QVariant::fromValue(m_view.rootObject()->findChild<QObject*>("desk")));
}

EditorPage::~EditorPage()
{
    m_probe.reset();
    delete m_view.rootObject(); // while it has the context properties
}

QVariant EditorPage::run(const QString& code)
{
    QQmlExpression expression(qmlContext(m_probe.get()), m_probe.get(), code);
    const QVariant value = expression.evaluate();
    if (expression.hasError())
        qWarning("%s: %s", qPrintable(code), qPrintable(expression.error().toString()));
    return value;
}

QString EditorPage::disorder()
{
    return run(QStringLiteral("disorder()")).toString();
}
