// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "lan/logging.h"

Q_LOGGING_CATEGORY(lcLan, "nuvex.lan")
