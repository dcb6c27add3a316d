// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "editorscript.h"

#include <QDir>
#include <QQmlComponent>
#include <QQmlContext>

EditorScript::EditorScript()
{
    QDir(m_imports.path()).mkdir("Nuvex");
    QFile::link(NUVEX_EDITOR_MODULE, m_imports.filePath("Nuvex/Editor"));
    engine.addImportPath(m_imports.path());
    engine.rootContext()->setContextProperty("CAPI", &api);

    QQmlComponent component(&engine);
    component.setData("import QtQml 2.15\nimport Nuvex.Editor 1.0\n"
                      "QtObject {\n"
                      "    Component.onCompleted: Ejs.JCAPI = CAPI\n"
                      "    function run(code, args) { var [a, b, c] = args; return eval(code) }\n"
                      "}\n",
                      QUrl());
    m_page.reset(component.create());
    if (!m_page)
        qFatal("%s", qPrintable(component.errorString()));
}

void EditorScript::open(const QString& source)
{
    api.session.setSource(source);
    run("CAPI.generateEditor(); Ejs.map = CAPI.getMap(); Ejs.element = -1; Ejs.dirmap = null");
}

QVariant EditorScript::run(const QString& code, const QVariantList& arguments)
{
    QVariant result;
    QMetaObject::invokeMethod(m_page.get(), "run", Q_RETURN_ARG(QVariant, result), Q_ARG(QVariant, code),
                              Q_ARG(QVariant, QVariant(arguments)));
    return result.userType() == qMetaTypeId<QJSValue>() ? result.value<QJSValue>().toVariant() : result;
}
