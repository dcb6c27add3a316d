// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "qmldoc/editortext.h"

#include <QSet>

namespace {

const QString beforeNumber = QStringLiteral("\nproperty int element: ");
const QString function = QStringLiteral("    function evaluate(str) {      \n"
                                        "    eval(str);                    \n"
                                        "    }                             \n");
constexpr int maxDigits = 11;

// The inline components of a document that have an alias: the engine does not find it where an object of such
// a component has properties of its own.
QSet<QString> componentsWithAlias(const Outline& outline)
{
    QSet<QString> found;
    for (const Outline::Member& member : outline.members()) {
        const int component = member.isAlias ? outline.member(member.parent).parent : -1;
        if (component >= 0 && outline.member(component).kind == Outline::Member::InlineComponent)
            found.insert(outline.name(outline.member(component)));
    }
    return found;
}

enum class Extent { Full, Thinned };

QString withMembers(const QString& source, const Outline& outline, int firstElement, Extent extent)
{
    const bool isThinned = extent == Extent::Thinned;
    const QString afterNumber = '\n' + (isThinned ? QString() : function) + '\n';
    QString text;
    text.reserve(source.size() +
                 int(outline.items().size()) * (beforeNumber.size() + maxDigits + afterNumber.size()));
    const QSet<QString> bare = isThinned ? componentsWithAlias(outline) : QSet<QString>();
    int copied = 0;
    qint64 element = firstElement;
    for (const int item : outline.items()) {
        const Outline::Member& object = outline.member(item);
        const qint64 number = element++;
        if (isThinned && (!object.takesMembers || (!bare.isEmpty() && bare.contains(outline.name(object)))))
            continue;
        const int closingBrace = object.end - 1;
        text.append(source.constData() + copied, closingBrace - copied);
        text.append(beforeNumber).append(QString::number(number)).append(afterNumber);
        copied = closingBrace;
    }
    return text.append(source.constData() + copied, source.size() - copied);
}

// Length of what the editor put in at `position`; 0 when it is nothing.
int insertedLength(const QString& text, int position)
{
    const int numberEnd = text.indexOf('\n', position + beforeNumber.size());
    if (numberEnd < 0 || text.midRef(position, beforeNumber.size()) != beforeNumber)
        return 0;
    const int functionBegin = numberEnd + 1;
    const bool isFull = text.midRef(functionBegin, function.size()) == function;
    return functionBegin + (isFull ? function.size() : 0) + 1 - position;
}

} // namespace

QString editorText(const QString& source, const Outline& outline, int firstElement)
{
    return withMembers(source, outline, firstElement, Extent::Full);
}

QString thinnedText(const QString& source, const Outline& outline, int firstElement)
{
    return withMembers(source, outline, firstElement, Extent::Thinned);
}

int sourceOffset(const Outline& outline, const QString& text, int offset)
{
    int inserted = 0;
    for (const int item : outline.items()) {
        const int closingBrace = outline.member(item).end - 1;
        if (offset - inserted < closingBrace)
            break;
        const int length = insertedLength(text, closingBrace + inserted);
        if (offset - inserted < closingBrace + length)
            return closingBrace;
        inserted += length;
    }
    return offset - inserted;
}
