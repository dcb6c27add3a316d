#!/bin/sh
# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
#
# screenshots.sh [pages] [editor] [device] [dashboard] [gallery] [DEMO...]: renews docs/screenshots, all of them or
# what is named: drives the real program on virtual screens of three sizes. Needs the build of ./test.
set -eu
cd "$(dirname "$0")/.."
exec python3 tests/e2e/screenshots.py --program build/dev/app/nuvex --plugins build/dev/tests/e2e/plugins \
    --localcloud build/dev/localcloud/nuvex-localcloud "$@"
