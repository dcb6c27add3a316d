// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "qmldoc/documentfaults.h"

#include "qmldoc/faults.h"

namespace {

QVariantMap asMap(const Fault& fault, const QString& file = QLatin1String(""))
{
    return {{QStringLiteral("line"), fault.place.line},
            {QStringLiteral("column"), fault.place.column},
            {QStringLiteral("message"), fault.message},
            {QStringLiteral("file"), file}};
}

} // namespace

QVariantList DocumentFaults::inSource(const QString& source) const
{
    QVariantList list;
    for (const Fault& fault : faultsInSource(source))
        list.append(asMap(fault));
    return list;
}

QVariantList DocumentFaults::inText(const QString& source, const QString& text, const QUrl& url,
                                    const QVariantList& errors) const
{
    QVariantList list;
    for (const QVariant& entry : errors) {
        const QVariantMap error = entry.toMap();
        const QUrl file = error[QStringLiteral("fileName")].toUrl();
        const TextPlace place{error[QStringLiteral("lineNumber")].toInt(),
                              error[QStringLiteral("columnNumber")].toInt()};
        const QString message = error[QStringLiteral("message")].toString();
        if (file == url || file.isEmpty())
            list.append(asMap({sourcePlace(source, text, place), message}));
        else
            list.append(asMap({place, message}, file.toString()));
    }
    return list;
}
