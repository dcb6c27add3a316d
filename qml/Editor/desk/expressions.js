.pragma library
// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// What kind of thing the source text of a property is, as far as it decides how a change is shown live.

/// Whether a property of this name holds code that runs at its time.
function isHandler(name) {
    return /^(?:.*\.)?on[A-Z]\w*$/.test(name);
}

/// Whether `code` is a value that stays: a number, a text, a word for one, or a list of these.
function isConstant(code) {
    const rest = code.replace(_texts, "0").replace(_comments, " ")
                     .replace(/\b(?:true|false|null|undefined|[A-Z]\w*(?:\.[A-Z]\w*)+)\b/g, "0");
    return /^[\s\[\],0-9.eE+\-*\/()]*$/.test(rest);
}

/// Whether `code` is an expression; a block and an object are not.
function isExpression(code) {
    const start = code.replace(_comments, " ").trim();
    return start !== "" && !/^(?:\{|[A-Z][\w.]*\s*\{|[A-Z][\w.]*\s+on\s|\[\s*[A-Z][\w.]*\s*\{)/.test(start);
}

const _texts = /"(?:[^"\\]|\\[^])*"|'(?:[^'\\]|\\[^])*'/g;
const _comments = /\/\*[^]*?\*\/|\/\/[^\n]*/g;
