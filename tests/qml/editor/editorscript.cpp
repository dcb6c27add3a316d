// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "editorscript.h"

#include "app/qmlcontext.h"

#include <QQmlComponent>
#include <QQmlContext>

EditorScript::EditorScript()
{
    qputenv("XDG_DATA_HOME", QFile::encodeName(m_home.path()));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_home.path()));
    setApplicationNames();
    api = std::make_unique<CAPI>(nullptr, nullptr);
    api->createProject("Test");
    api->setBaseFolder("Test");
    prepareEngine(engine, {});
    engine.rootContext()->setContextProperty("CAPI", api.get());

    QQmlComponent component(&engine);
    component.setData("import QtQml 2.15\nimport Nuvex.Editor 1.0\nimport Nuvex.Native 1.1\n"
                      "QtObject {\n    id: page\n"
                      "    Component.onCompleted: Ejs.JCAPI = CAPI\n"
                      "    property DocumentFaults faults: DocumentFaults { }\n"
                      "    function run(code, args) { var [a, b, c] = args; return eval(code) }\n"
                      "}\n",
                      QUrl());
    m_page.reset(component.create());
    if (!m_page)
        qFatal("%s", qPrintable(component.errorString()));
}

void EditorScript::open(const QString& source)
{
    api->setSourceCode(source);
    run("CAPI.generateEditor(); Ejs.map = CAPI.getMap(); Ejs.element = -1; Ejs.dirmap = null");
}

QVariant EditorScript::run(const QString& code, const QVariantList& arguments)
{
    QVariant result;
    QMetaObject::invokeMethod(m_page.get(), "run", Q_RETURN_ARG(QVariant, result), Q_ARG(QVariant, code),
                              Q_ARG(QVariant, QVariant(arguments)));
    return result.userType() == qMetaTypeId<QJSValue>() ? result.value<QJSValue>().toVariant() : result;
}
