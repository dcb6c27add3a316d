// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/platform.h"

#include "api/logging.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHostInfo>
#include <QNetworkInterface>
#include <QProcess>
#include <QTouchDevice>

#include <algorithm>

namespace {

bool reachesOut(const QNetworkInterface& interface)
{
    const auto flags = interface.flags();
    return flags.testFlag(QNetworkInterface::IsUp) && flags.testFlag(QNetworkInterface::IsRunning) &&
           !flags.testFlag(QNetworkInterface::IsLoopBack);
}

} // namespace

namespace platform {

void restartProgram()
{
    const QStringList arguments = QCoreApplication::arguments();
    QCoreApplication::quit();
    if (!QProcess::startDetached(arguments.constFirst(), arguments))
        qCWarning(lcApi) << "The program could not be started again:" << arguments.constFirst();
}

bool connectedToNetwork()
{
    const QList<QNetworkInterface> interfaces = QNetworkInterface::allInterfaces();
    return std::any_of(interfaces.begin(), interfaces.end(), reachesOut) &&
           !QNetworkInterface::allAddresses().isEmpty();
}

QString clipboardText()
{
    return QGuiApplication::clipboard()->text(QClipboard::Clipboard);
}

void setClipboardText(const QString& text)
{
    QGuiApplication::clipboard()->setText(text, QClipboard::Clipboard);
}

QString hostName()
{
    return QHostInfo::localHostName();
}

QString networkAddress()
{
    for (const QNetworkInterface& interface : QNetworkInterface::allInterfaces()) {
        if (!reachesOut(interface))
            continue;
        for (const QNetworkAddressEntry& entry : interface.addressEntries()) {
            if (entry.ip().protocol() == QAbstractSocket::IPv4Protocol)
                return entry.ip().toString();
        }
    }
    return {};
}

bool isDevice(const QString& productType)
{
    return productType == QLatin1String("android") || productType == QLatin1String("blackberry") ||
           productType == QLatin1String("ios") || productType == QLatin1String("winphone");
}

bool hasTouch()
{
    return !QTouchDevice::devices().isEmpty();
}

} // namespace platform
