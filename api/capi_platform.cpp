// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/capi.h"

#include "api/platform.h"

#include <QQuickView>
#include <QSysInfo>

void CAPI::setFullScreen(bool fullScreen)
{
    if (!m_view || m_windowMode == WindowMode::AlwaysWindowed)
        return;
    if (fullScreen)
        m_view->showFullScreen();
    else
        m_view->showNormal();
}

void CAPI::reStartApp()
{
    platform::restartProgram();
}

bool CAPI::isConnectedToNetwork()
{
    return platform::connectedToNetwork();
}

QString CAPI::getClipboard()
{
    return platform::clipboardText();
}

void CAPI::setClipboard(QString text)
{
    platform::setClipboardText(text);
}

QString CAPI::hostName()
{
    return platform::hostName();
}

bool CAPI::isDevice()
{
    return platform::isDevice(QSysInfo::productType());
}

bool CAPI::haveTouch()
{
    return platform::hasTouch();
}

void CAPI::setLog(QString) {}

void CAPI::installApp(QString) {}

void CAPI::setRunAtStartup(bool) {}

bool CAPI::getRunAtStartup()
{
    return false;
}
