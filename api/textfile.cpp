// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/textfile.h"

#include "api/capi.h"
#include "api/limits.h"
#include "api/textencoding.h"

#include <QFileInfo>

bool TextFile::isUtf8() const
{
    const CAPI* capi = CAPI::of(this);
    return !capi || isUtf8File(capi->resolvedPath(m_path));
}

bool TextFile::isReadable() const
{
    const CAPI* capi = CAPI::of(this);
    const QFileInfo file(capi ? capi->resolvedPath(m_path) : m_path);
    return file.isReadable() && file.size() <= limits::textFileBytes;
}
