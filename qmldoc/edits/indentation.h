// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// `code`, the source of one object, with its lines behind the first one moved so that its closing brace
/// stands below `indentation`. Lines that begin within a text or template stay, for their blanks count.
/// Nothing moves when the closing brace does not begin its line.
QString indented(const QString& code, const QString& indentation);
