// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// A message as the log may have it: without the values of signatures, credentials and keys in addresses,
/// which the libraries put whole into their own messages, and not longer than limits::messageLength.
QString loggable(const QString& message);

/// From now on all messages of the program, to whom they may go, are loggable(). Once, after whatever else
/// takes messages was installed. Any thread may write.
void guardMessages();
