// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/transfers.h"

#include "api/capi.h"

void Transfers::classBegin()
{
    if (CAPI* capi = CAPI::of(this))
        setServices(capi->cloud());
}
