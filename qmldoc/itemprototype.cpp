// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "qmldoc/itemprototype.h"

QString itemPrototype(const QString& text)
{
    const int name = text.indexOf(QLatin1String("cPrototype"));
    if (name < 0)
        return QString();
    const int opening = text.indexOf(QLatin1Char('"'), name);
    const int closing = text.indexOf(QLatin1Char('"'), opening + 1);
    const int begin = opening + 1;
    return closing < 0 ? text.mid(begin) : text.mid(begin, closing - begin);
}
