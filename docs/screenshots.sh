#!/bin/sh
# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
#
# Renews docs/screenshots: drives the real program on virtual screens of three sizes. Needs the build of ./test.
set -eu
cd "$(dirname "$0")/.."
exec python3 tests/e2e/screenshots.py --program build/dev/app/nuvex --plugins build/dev/tests/e2e/plugins "$@"
