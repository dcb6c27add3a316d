// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "qmldoc/edits/passage.h"

// Changes of the objects of a document, all or none each. Objects are named by the offset, of the source, at
// which they begin.

/// Puts `code`, the source of objects, just before the closing brace of `parent`, as it stands; only a line
/// end is added where it needs one. `imports` are import lines, without line ends, that it needs: those that
/// the document does not have, in whatever version, come behind the others. With imports the passage is the
/// whole document.
Change addObjects(const Passage& passage, int parent, const QString& code, const QStringList& imports = {});

/// Puts `code`, the source of one object, into the body of `parent`: before its object `before`, or behind
/// its last member when that is -1. It gets lines of its own and is indented for its place, unless it goes
/// before an object in the middle of a line.
Change insertObject(const Passage& passage, int parent, int before, const QString& code,
                    const QStringList& imports = {});

/// Takes objects out, with the commas that part them from others of a list. The last one of a declared list
/// takes the list with it. Refused for the document's root and for what an inline component consists of.
Change removeObjects(const Passage& passage, const std::vector<int>& objects);

/// Moves objects, in the given order, into the body of `parent`; see insertObject(). Lines that they leave
/// empty go. Those of one body, or of one list, that stay in it change places; see reorderingEdits().
Change moveObjects(const Passage& passage, const std::vector<int>& objects, int parent, int before);

/// Puts `code`, the source of one object, in place of `object`. The passage is what holds it, or the
/// document.
Change replaceObject(const Passage& passage, int object, const QString& code);
