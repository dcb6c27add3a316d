// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// Small services of the machine that the program runs on. GUI thread.
namespace platform {

/// Asks the application to quit and starts a new detached process with the same arguments (the program's own
/// path stands first among them).
void restartProgram();
/// Whether some interface besides loopback is up and running and this host has an address. Nothing is probed.
/// Any thread.
bool connectedToNetwork();
/// Text of the clipboard.
QString clipboardText();
void setClipboardText(const QString& text);
/// The local host name.
QString hostName();
/// This host's first IPv4 address besides loopback, of an interface that is up; empty without a network.
QString networkAddress();
/// Whether `productType` (as QSysInfo names it, case-sensitive) is a hand-held system.
bool isDevice(const QString& productType);
/// Whether a touch device is present.
bool hasTouch();

} // namespace platform
