// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "qmldoc/burden.h"

#include "qmldoc/outline.h"
#include "qmldoc/textplace.h"

#include <QLocale>

#include <algorithm>
#include <vector>

namespace {

using Member = Outline::Member;

// How often a repeater's objects are made; 1 for what is no repeater, and where that is worked out.
double copies(const Outline& outline, int object)
{
    const QString type = outline.name(outline.member(object));
    if (type != QLatin1String("Repeater") && type != QLatin1String("Instantiator"))
        return 1;
    for (int i = object; (i = outline.nextProperty(object, i)) >= 0;) {
        const Member& property = outline.member(i);
        const QString value = outline.text().mid(property.valueBegin, property.end - property.valueBegin);
        bool isNumber = false;
        const double number = QLocale::c().toDouble(value.trimmed().remove(QLatin1Char(';')), &isNumber);
        if (isNumber && outline.name(property).trimmed() == QLatin1String("model"))
            return std::max(0.0, number);
    }
    return 1;
}

} // namespace

Burden burdenOf(const QString& source)
{
    const Outline outline(source);
    const int count = int(outline.members().size());
    // Of each member, children behind their parents: how often it is made, and what that comes to with all in
    // it.
    std::vector<double> times(size_t(count), 1);
    std::vector<double> within(size_t(count), 0);
    for (int i = 0; i < count; ++i) {
        const int parent = outline.member(i).parent;
        times[size_t(i)] = parent < 0 ? 1 : times[size_t(parent)];
        if (outline.member(i).kind != Member::Object && outline.member(i).kind != Member::ObjectBinding)
            continue;
        within[size_t(i)] = times[size_t(i)];
        times[size_t(i)] *= copies(outline, i);
    }
    for (int i = count - 1; i > 0; --i)
        if (outline.member(i).parent >= 0)
            within[size_t(outline.member(i).parent)] += within[size_t(i)];
    Burden burden{source.size(), count > 0 ? within[0] : 0, 0};
    for (int i = 0; i < count && burden.line == 0; ++i)
        if (within[size_t(i)] > burden.objects / 2 && times[size_t(i)] > 1 && copies(outline, i) > 1)
            burden.line = lineEnds(source, 0, outline.member(i).begin) + 1;
    return burden;
}
