// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "base/logging.h"

Q_LOGGING_CATEGORY(lcBase, "nuvex.base")
