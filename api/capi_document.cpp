// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/capi.h"

#include "qmldoc/itemprototype.h"

#include <QFile>
#include <QQmlEngine>
#include <QQuickView>

namespace {

const QString editorFrame = QStringLiteral(":/Nuvex/PlayerQML/Editor.qml");

} // namespace

void CAPI::readSourceCode(QString filePath)
{
    m_editing.begin(m_folder.read(filePath));
    emitEditingState();
}

void CAPI::setSourceCode(QString sourceCode)
{
    m_editing.setSource(sourceCode);
}

void CAPI::trimComponentCache()
{
    if (m_view)
        m_view->engine()->trimComponentCache();
}

void CAPI::clearComponentCache()
{
    PlayerView(m_view).forgetCompiled();
}

QString CAPI::generateEditor(QString sc, int initialElement)
{
    return m_editing.generateEditor(sc, initialElement);
}

void CAPI::createEditorFile()
{
    // Without a check the writing would make the folder of a project that is not there.
    if (QFile::exists(editorFrame) && QFile::exists(m_folder.path()))
        m_folder.write(m_folder.read(editorFrame), editorVersion());
}

QString CAPI::editedSourceCode()
{
    return m_editing.source();
}

QString CAPI::sourceCode(int beg, int end)
{
    return m_editing.source(beg, end);
}

QVariantList CAPI::getMap()
{
    return m_editing.getMap();
}

QVariantList CAPI::parseAndGetMap(QString sc)
{
    return EditingSession::parseAndGetMap(sc);
}

void CAPI::replaceSourceCode(int beg, int end, QString sc)
{
    m_editing.replace(beg, end, sc);
}

QString CAPI::editorVersion()
{
    return EditingSession::editorVersion();
}

QString CAPI::getItemPrototype(QString filePath)
{
    return itemPrototype(m_folder.read(filePath));
}

int CAPI::posInSourceCode(QString s, int from)
{
    return m_editing.position(s, from);
}

int CAPI::prevPosInSourceCode(QString s, int from)
{
    return m_editing.previousPosition(s, from);
}

QString CAPI::getForwardSource()
{
    QString source = m_editing.forward();
    emitEditingState();
    return source;
}

QString CAPI::getBackwardSource()
{
    QString source = m_editing.backward();
    emitEditingState();
    return source;
}

void CAPI::saveEditingState()
{
    m_editing.saveState();
    emitEditingState();
}

void CAPI::emitEditingState()
{
    emit newerEditingState(m_editing.isNewest());
    emit olderEditingState(m_editing.isOldest());
}
