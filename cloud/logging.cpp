// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "cloud/logging.h"

Q_LOGGING_CATEGORY(lcCloud, "nuvex.cloud")
