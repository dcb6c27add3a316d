// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "qmldoc/edits/propertyedits.h"

#include "qmldoc/itemrecord.h"
#include "qmldoc/textplace.h"

#include <QCoreApplication>

#include <set>

namespace {

using Member = Outline::Member;

QString inWords(const char* text)
{
    return QCoreApplication::translate("SourceEdits", text);
}

// Whether `member` is an object or list bound to `name`.
bool isBlock(const Outline& outline, const Member& member, const QString& name)
{
    const bool isBound = member.kind == Member::ObjectBinding || member.kind == Member::ListBinding;
    return isBound && member.nameEnd > member.nameBegin &&
           propertyName(outline, member, outline.text()) == name;
}

// The name of a group with its dot, as "font."; empty for anything else.
QString groupPrefix(const Outline& outline, const Member& member)
{
    if (member.kind != Member::Object || member.takesMembers)
        return QString();
    const QString name = outline.text().mid(member.begin, member.bodyBegin - 1 - member.begin);
    return name.simplified().remove(QLatin1Char(' ')) + '.';
}

// Index of the member that is the property `name` of an object; -1 when it has none.
int findProperty(const Outline& outline, int object, const QString& name)
{
    int found = -1; // the last one counts
    for (int i = object; (i = outline.nextProperty(object, i)) >= 0;)
        found = propertyName(outline, outline.member(i), outline.text()) == name ? i : found;
    for (int i = object + 1; found < 0 && i < outline.member(object).next; i = outline.member(i).next) {
        const QString group = groupPrefix(outline, outline.member(i));
        if (isBlock(outline, outline.member(i), name))
            found = i;
        else if (!group.isEmpty() && name.startsWith(group))
            found = findProperty(outline, i, name.mid(group.size()));
    }
    return found;
}

// The last declaration or binding in the object's own body; -1 when there is none.
int lastOwnProperty(const Outline& outline, int object)
{
    int last = -1;
    for (int i = object + 1; i < outline.member(object).next; i = outline.member(i).next) {
        const Member& member = outline.member(i);
        last = member.kind == Member::Declaration || member.kind == Member::ScriptBinding ? i : last;
    }
    return last;
}

SourceEdit newProperty(const Passage& passage, int object, const PropertyValue& value)
{
    const Outline& outline = passage.outline();
    const int last = lastOwnProperty(outline, object);
    int at = outline.member(object).end - 1;
    QString indentation = passage.indentation(outline.member(object).begin) + "    ";
    if (last >= 0) {
        const int next = tokenAt(outline.text(), outline.member(last).end);
        at = outline.text().at(next) == ';' ? next + 1 : outline.member(last).end;
        indentation = passage.indentation(outline.member(last).begin);
    }
    const QString lineEnd = isLineEnd(outline.text().at(at - 1)) ? QString() : passage.lineEnd();
    return {at, at, lineEnd + indentation + value.name + " : " + passage.withLineEnds(value.text), 1};
}

// The edit that gives an object the property.
SourceEdit propertyEdit(const Passage& passage, const PropertyValue& value)
{
    const int object = passage.objectAt(value.object);
    const int found = findProperty(passage.outline(), object, value.name);
    if (found < 0)
        return newProperty(passage, object, value);
    const Member& property = passage.outline().member(found);
    const QString text = passage.withLineEnds(value.text);
    if (property.valueBegin < property.end)
        return {property.valueBegin, property.end, text};
    return {property.nameEnd, property.end, ": " + text};
}

// Why `text` is not the source of one value; empty when it is.
QString faultInValue(const QString& text)
{
    bool isNumber = false;
    text.toDouble(&isNumber);
    if (isNumber)
        return QString();
    const Outline outline("A{a:" + text + "\n}");
    if (!outline.isValid())
        return inWords("This is no value: %1.").arg(outline.error().message);
    const bool isOne = outline.member(0).next == outline.member(1).next;
    return isOne ? QString() : inWords("This is more than one value.");
}

// Why the property cannot have the value; empty when nothing is known against it.
QString fault(const Passage& passage, const PropertyValue& value)
{
    const int object = passage.objectAt(value.object);
    if (object < 0)
        return inWords("The source is not as the editor knows it.");
    const int found = findProperty(passage.outline(), object, value.name);
    if (found >= 0 && passage.outline().member(found).isSignal)
        return inWords("A signal has no value.");
    return faultInValue(value.text);
}

} // namespace

Change setProperties(const Passage& passage, const std::vector<PropertyValue>& values)
{
    std::vector<SourceEdit> edits;
    std::set<int> begins;
    for (const PropertyValue& value : values) {
        const QString reason = fault(passage, value);
        if (!reason.isEmpty())
            return Change::refused(reason);
        edits.push_back(propertyEdit(passage, value));
        SourceEdit& edit = edits.back();
        const bool isBehindOther = !begins.insert(edit.begin).second;
        if (isBehindOther && !isLineEnd(edit.text.at(0)))
            edit.text.prepend(passage.lineEnd());
    }
    return passage.settledChange(edits);
}
