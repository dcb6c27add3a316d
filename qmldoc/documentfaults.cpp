// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "qmldoc/documentfaults.h"

#include "qmldoc/burden.h"
#include "qmldoc/endlessloading.h"
#include "qmldoc/faults.h"

namespace {

QVariantMap asMap(const Fault& fault, const QString& file = QLatin1String(""))
{
    return {{QStringLiteral("line"), fault.place.line},
            {QStringLiteral("column"), fault.place.column},
            {QStringLiteral("message"), fault.message},
            {QStringLiteral("file"), file}};
}

QVariantList asList(const QVector<Fault>& faults)
{
    QVariantList list;
    for (const Fault& fault : faults)
        list.append(asMap(fault));
    return list;
}

} // namespace

QVariantList DocumentFaults::inSource(const QString& source) const
{
    return asList(faultsInSource(Outline(source)));
}

QVariantList DocumentFaults::inLoading(const QString& source, const QUrl& file) const
{
    return asList(endlessLoading(Outline(source), file.toLocalFile()));
}

QVariantMap DocumentFaults::burden(const QString& source) const
{
    const Burden burden = burdenOf(source);
    return {{QStringLiteral("characters"), burden.characters},
            {QStringLiteral("objects"), burden.objects},
            {QStringLiteral("line"), burden.line}};
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
