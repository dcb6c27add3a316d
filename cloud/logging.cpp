// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "cloud/logging.h"

// Plans, a line a file, only when asked for.
Q_LOGGING_CATEGORY(lcCloud, "nuvex.cloud", QtInfoMsg)
