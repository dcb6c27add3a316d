// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/capi.h"

bool CAPI::copyFile(QString src, QString dest)
{
    return m_folder.copy(src, dest);
}

QString CAPI::copyFileToDir(QString src, QString destDir)
{
    return m_folder.copyToDir(src, destDir);
}

bool CAPI::writeToFile(QString txt, QString fileName)
{
    return m_folder.write(txt, fileName);
}

bool CAPI::appendToFile(QString txt, QString fileName)
{
    return m_folder.append(txt, fileName);
}

bool CAPI::renameFile(QString filePath, QString newName)
{
    return m_folder.rename(filePath, newName);
}

bool CAPI::removeFile(QString filePath)
{
    return m_folder.remove(filePath);
}

bool CAPI::createProject(QString name)
{
    return m_workspace.create(name);
}

bool CAPI::removeProject(QString pName)
{
    return m_workspace.remove(pName);
}

bool CAPI::fileExist(QString filePath)
{
    return m_folder.exists(filePath);
}

QString CAPI::readTextFile(QString filePath)
{
    return m_folder.read(filePath);
}

QString CAPI::resolveUrl(QString path)
{
    return m_folder.resolvedUrl(path);
}

bool CAPI::renameDir(QString oldName, QString newName)
{
    return m_workspace.rename(oldName, newName);
}
