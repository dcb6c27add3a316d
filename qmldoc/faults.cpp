// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "qmldoc/faults.h"

#include "qmldoc/editortext.h"

#include <QCoreApplication>

namespace {

// Whether `member` is one that the editor adds to its object.
bool isReserved(const Outline& outline, const Outline::Member& member)
{
    const bool isDeclared =
        member.kind == Outline::Member::Declaration || member.kind == Outline::Member::Function;
    if (!isDeclared || member.parent < 0 || !outline.member(member.parent).isNumbered)
        return false;
    const QString name = outline.name(member);
    return name == QLatin1String("element") || name == QLatin1String("evaluate");
}

} // namespace

QVector<Fault> faultsInSource(const Outline& outline)
{
    const SyntaxError& error = outline.error();
    if (!outline.isValid())
        return {{{error.line, error.column}, error.message}};
    QVector<Fault> faults;
    for (const Outline::Member& member : outline.members()) {
        if (isReserved(outline, member))
            faults.append(
                {textPlace(outline.text(), member.begin),
                 QCoreApplication::translate("DocumentFaults", "The name \"%1\" is taken by the editor")
                     .arg(outline.name(member))});
    }
    return faults;
}

TextPlace sourcePlace(const QString& source, const QString& text, TextPlace place)
{
    place.column = std::max(1, place.column);
    return textPlace(source, sourceOffset(Outline(source), text, textOffset(text, place)));
}
