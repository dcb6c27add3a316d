// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/textfile.h"

#include "api/capi.h"
#include "api/textencoding.h"

bool TextFile::isUtf8() const
{
    const CAPI* capi = CAPI::of(this);
    return !capi || isUtf8File(capi->resolvedPath(m_path));
}

bool TextFile::isReadable() const
{
    const CAPI* capi = CAPI::of(this);
    return isTextFile(capi ? capi->resolvedPath(m_path) : m_path);
}
