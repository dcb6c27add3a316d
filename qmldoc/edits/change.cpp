// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "qmldoc/edits/change.h"

QString edited(const QString& text, const std::vector<SourceEdit>& edits)
{
    QString result;
    int copied = 0;
    for (const SourceEdit& edit : edits) {
        result += text.midRef(copied, edit.begin - copied) + edit.text;
        copied = edit.end;
    }
    return result + text.midRef(copied);
}
