// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "quick/logging.h"

// Debug lines come once a video frame, so they are off unless asked for.
Q_LOGGING_CATEGORY(lcQuick, "nuvex.quick", QtInfoMsg)
