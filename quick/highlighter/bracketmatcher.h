// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

class QTextDocument;

/// Position of the bracket that belongs to the one at `position` of `document` (UTF-16 code units from its
/// start), by the bracket lists that QMLHighlighter left in it. -1 when there is no bracket at `position`, it
/// has no partner or is closed by one of another kind, or the document has no highlighter. The document's
/// thread.
int matchingBracket(const QTextDocument& document, int position);
