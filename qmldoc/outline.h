// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "qmldoc/syntaxtree.h"

#include <vector>

/// What stands where in a QML document: its objects and their members, without the insides of scripts. A
/// value.
///
/// Positions are 0-based offsets in UTF-16 code units, ends are exclusive. Members are in the order of the
/// text, an object before what it holds.
class Outline
{
public:
    struct Member
    {
        enum Kind {
            Object,      ///< `Type { }`, also a group as `font { }`
            Declaration, ///< of a property or signal; an object or list that it begins with is a member of it
            ScriptBinding,   ///< `name: script`
            ObjectBinding,   ///< `name: Type { }` or `Type on name { }`
            ListBinding,     ///< `name: [Type { }]`
            InlineComponent, ///< `component Name: Type { }`
            Function,
            Other, ///< an enumeration, a property that is required
        };
        Kind kind = Other;
        bool isNumbered = false;   ///< an object that the editor numbers
        bool takesMembers = false; ///< an object with a type of its own: no group, no ListElement
        bool isSignal = false;
        bool isAlias = false; ///< a declaration
        int parent = -1;      ///< index of the member that holds this one; -1 for the root
        int next = 0;         ///< index behind the last member that this one holds
        int begin = 0;        ///< of the first keyword or name
        int nameBegin = 0;    ///< of an object's type, a declared name, a bound name
        int nameEnd = 0;      ///< of an object's type up to its first dot, a declared name, a bound name
        int valueBegin = 0;   ///< of what follows the colon; `end` when nothing does
        int bodyBegin = -1;   ///< behind the opening brace or bracket; -1 when there is none
        int end = 0;          ///< of the closing brace, or of the value and, behind a script, its semicolon
    };

    /// An import or pragma at the head of a document.
    struct HeadLine
    {
        QString
            module; ///< what is imported: a module's name, or a file or folder in quotes; empty for a pragma
        QString qualifier; ///< the name behind "as", or empty
        int end = 0;       ///< with its semicolon, if there is one
    };

    /// Parses `text`. What is no document, or nests deeper than limits::maxDepth objects, has an error() and
    /// no members.
    explicit Outline(const QString& text);
    /// The outline of nothing.
    Outline() = default;

    bool isValid() const { return m_error.message.isEmpty(); }
    const SyntaxError& error() const { return m_error; }
    /// The text as it was parsed; a byte-order mark has become a blank.
    const QString& text() const { return m_text; }

    const std::vector<HeadLine>& head() const { return m_head; }
    const std::vector<Member>& members() const { return m_members; }
    const Member& member(int i) const { return m_members[size_t(i)]; }
    /// Indices of the objects that the editor numbers, in the order of their closing braces: innermost first,
    /// the root last. Not numbered are "Component" and "anchors" objects and what these hold, and objects
    /// that are the value of a binding.
    const std::vector<int>& items() const { return m_items; }
    /// Index of the property of `object` that follows member `i`, `object` itself for the first one; -1 when
    /// there is none. Its properties are its own declarations and script bindings and those in its object
    /// bindings, but none of the objects that it holds.
    int nextProperty(int object, int i) const;
    /// Index of the innermost object whose body holds the characters [begin, end), also when there are none;
    /// -1 when none does. An object that is the value of a binding does not count.
    int objectAround(int begin, int end) const;
    /// The type of an object up to its first dot, or a declared name, escapes worked out; or a bound name as
    /// it stands, with its blanks and comments.
    QString name(const Member& member) const;

private:
    friend class OutlineBuilder;

    QString m_text;
    SyntaxError m_error;
    std::vector<HeadLine> m_head;
    std::vector<Member> m_members;
    std::vector<int> m_items;
};

/// Where the first token stands at or behind `position`, which is not within one: what follows blanks and
/// comments; the end of `text` when nothing does.
int tokenAt(const QString& text, int position);

/// Where the comment ends that begins at `position`, without the line end behind it; `position` when none
/// begins there.
int endOfComment(const QString& text, int position);
