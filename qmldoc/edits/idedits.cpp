// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "qmldoc/edits/idedits.h"

#include "qmldoc/edits/nameuses.h"
#include "qmldoc/edits/propertyedits.h"

#include <QCoreApplication>
#include <QSet>

#include <algorithm>

namespace {

using Member = Outline::Member;

QString inWords(const char* text)
{
    return QCoreApplication::translate("SourceEdits", text);
}

Change refused(const char* reason, const QString& name, const std::vector<NameUse>& uses)
{
    QStringList lines;
    for (const NameUse& use : uses)
        lines.append(QString::number(use.line));
    lines.removeDuplicates();
    return Change::refused(inWords(reason).arg(name, lines.join(QLatin1String(", "))));
}

// Whether the engine takes `name` for an id. The words are functions and values that it gives all scripts.
bool isId(const QString& name)
{
    static const QSet<QString> taken{"console",     "decodeURI",  "decodeURIComponent",
                                     "element",     "encodeURI",  "encodeURIComponent",
                                     "escape",      "eval",       "evaluate",
                                     "gc",          "isFinite",   "isNaN",
                                     "parent",      "parseFloat", "parseInt",
                                     "print",       "qsTr",       "qsTrId",
                                     "qsTranslate", "undefined",  "unescape"};
    const auto isPart = [](QChar c) { return c.isLetterOrNumber() || c == '_'; };
    return !name.isEmpty() && (name.at(0) == '_' || name.at(0).isLower()) &&
           std::all_of(name.cbegin(), name.cend(), isPart) && !taken.contains(name) &&
           SyntaxTree::isIdentifier(name);
}

// Index of the binding of an object's id; -1 when it has none.
int idOf(const Outline& outline, int object)
{
    for (int i = object + 1; i < outline.member(object).next; i = outline.member(i).next) {
        if (outline.member(i).kind == Member::ScriptBinding &&
            outline.name(outline.member(i)).trimmed() == QLatin1String("id"))
            return i;
    }
    return -1;
}

// The id that a binding gives, which may stand in quotes.
QString valueOf(const Outline& outline, int binding)
{
    const Member& member = outline.member(binding);
    QString value = outline.text().mid(member.valueBegin, member.end - member.valueBegin);
    if (value.endsWith(';'))
        value.chop(1);
    value = value.trimmed();
    const bool isQuoted = value.size() > 1 && (value.startsWith('"') || value.startsWith('\''));
    return isQuoted ? value.mid(1, value.size() - 2) : value;
}

// Whether `member`, and all within it, is made for each entry of a model, whose roles are names there.
bool isForEntries(const Outline& outline, const Member& member)
{
    static const QSet<QString> makers{"Component", "Instantiator", "Repeater"};
    if (member.kind == Member::ObjectBinding)
        return outline.name(member).trimmed().endsWith(QLatin1String("delegate"), Qt::CaseInsensitive);
    if (member.kind != Member::Object || member.parent < 0)
        return false;
    const Member& parent = outline.member(member.parent);
    return parent.kind == Member::Object && makers.contains(outline.name(parent));
}

// The innermost member around `offset`.
int memberAt(const Outline& outline, int offset)
{
    const auto behind =
        std::upper_bound(outline.members().cbegin(), outline.members().cend(), offset,
                         [](int offset, const Member& member) { return offset < member.begin; });
    int i = int(behind - outline.members().cbegin()) - 1;
    while (i >= 0 && outline.member(i).end <= offset)
        i = outline.member(i).parent;
    return i;
}

// Names that the engine gives the handlers of signals.
bool isGivenToHandlers(const QString& name)
{
    static const QSet<QString> names{"drag",  "drop",  "error",  "event",   "gesture",
                                     "mouse", "pinch", "reason", "request", "wheel"};
    return names.contains(name);
}

bool isHandler(const QString& name)
{
    const QString last = name.mid(name.lastIndexOf('.') + 1).trimmed();
    return last.size() > 2 && last.startsWith(QLatin1String("on")) && last.at(2).isUpper();
}

// Whether some object sets a property, or a group's, of that name.
bool isBound(const Outline& outline, const QString& name)
{
    return std::any_of(outline.members().cbegin(), outline.members().cend(), [&](const Member& member) {
        const bool isBinding = member.kind == Member::ScriptBinding || member.kind == Member::ObjectBinding ||
                               member.kind == Member::ListBinding;
        return isBinding && outline.name(member).section('.', 0, 0).trimmed() == name;
    });
}

// Whether the use of an id's name may mean something else.
bool isDoubtful(const Outline& outline, const NameUse& use, const QString& name)
{
    static const QSet<QString> roles{"index", "model", "modelData"};
    if (use.kind == NameUse::Declared)
        return true;
    for (int i = memberAt(outline, use.offset); i >= 0; i = outline.member(i).parent) {
        const Member& member = outline.member(i);
        if (member.kind == Member::ScriptBinding && isGivenToHandlers(name) &&
            isHandler(outline.name(member)))
            return true;
        const bool isPlain = use.kind == NameUse::Owner && !roles.contains(name) && !isBound(outline, name);
        if (use.kind != NameUse::Id && isForEntries(outline, member) && !isPlain)
            return true;
    }
    return false;
}

SourceEdit renaming(const NameUse& use, const QString& oldName, const QString& name)
{
    const QString text = use.kind == NameUse::Shorthand ? oldName + ": " + name : name;
    return {use.offset, use.offset + oldName.size(), text};
}

// The ids of a document.
QSet<QString> idsOf(const Outline& outline)
{
    QSet<QString> ids;
    for (int i = 0; i < int(outline.members().size()); ++i)
        if (const int id = idOf(outline, i); id >= 0)
            ids.insert(valueOf(outline, id));
    return ids;
}

// A name like `name` that stands nowhere in `text`.
QString freshName(const QString& name, const QString& text)
{
    QString stem = name;
    while (stem.size() > 1 && stem.back().isDigit())
        stem.chop(1);
    int number = 2;
    while (text.contains(stem + QString::number(number)))
        ++number;
    return stem + QString::number(number);
}

} // namespace

Change renameId(const Passage& document, int object, const QString& name)
{
    const Outline& outline = document.outline();
    const int renamed = document.objectAt(object);
    std::vector<NameUse> others;
    if (!isId(name))
        return Change::refused(inWords("\"%1\" cannot be an id.").arg(name));
    if (!findNameUses(document.text(), name, others) || renamed < 0)
        return Change::refused(inWords("The source is not as the editor knows it."));
    if (!others.empty())
        return refused("\"%1\" is used already, in line %2.", name, others);
    const int id = idOf(outline, renamed);
    if (id < 0)
        return setProperties(document, {{object, QStringLiteral("id"), name}});
    const QString oldName = valueOf(outline, id);
    std::vector<NameUse> uses;
    findNameUses(document.text(), oldName, uses);
    std::vector<NameUse> doubtful;
    std::vector<SourceEdit> edits;
    for (const NameUse& use : uses) {
        const bool isOther = use.kind == NameUse::Id && use.offset != outline.member(id).valueBegin;
        if (isOther || isDoubtful(outline, use, oldName))
            doubtful.push_back(use);
        edits.push_back(renaming(use, oldName, name));
    }
    if (!doubtful.empty())
        return refused("It is not clear what \"%1\" means in line %2.", oldName, doubtful);
    return document.change(edits);
}

QString withFreshIds(const QString& code, const Outline& document)
{
    QString text = "A{" + code + "\n}";
    QStringList clashing = (idsOf(Outline(text)) & idsOf(document)).values();
    clashing.sort();
    for (const QString& id : qAsConst(clashing)) {
        const Outline outline(text);
        const QString name = freshName(id, document.text() + text);
        std::vector<NameUse> uses;
        findNameUses(text, id, uses);
        const bool isDeclared = std::any_of(uses.cbegin(), uses.cend(),
                                            [](const NameUse& use) { return use.kind == NameUse::Declared; });
        std::vector<SourceEdit> edits;
        for (const NameUse& use : uses)
            if (use.kind == NameUse::Id || (!isDeclared && !isDoubtful(outline, use, id)))
                edits.push_back(renaming(use, id, name));
        text = edited(text, edits);
    }
    return text.mid(2, text.size() - 4);
}
