// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "qmldoc/logging.h"

Q_LOGGING_CATEGORY(lcQmlDoc, "nuvex.qmldoc", QtInfoMsg)
