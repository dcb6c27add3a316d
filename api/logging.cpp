// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/logging.h"

Q_LOGGING_CATEGORY(lcApi, "nuvex.api")
