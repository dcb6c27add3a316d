// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Lines and indentation of source text. Positions are offsets into the text.
.pragma library

const step = "    ";
const comment = "// ";

// The line of a position, from 1.
function lineAt(text, position) {
    return text.substring(0, position).split("\n").length;
}

// Where a line begins; lines from 1. Beyond the last line: where that one begins.
function lineStart(text, line) {
    let start = 0;
    for (let i = 1; i < line && text.indexOf("\n", start) >= 0; ++i)
        start = text.indexOf("\n", start) + 1;
    return start;
}

// The blanks at the beginning of the position's line, and one step more behind an opening brace.
function leading(text, position) {
    const before = text.substring(text.lastIndexOf("\n", position - 1) + 1, position);
    const blanks = /^[ \t]*/.exec(before)[0];
    return /[{(\[]\s*$/.test(before) ? blanks + step : blanks;
}

// Whether nothing but blanks stand between the line's beginning and the position.
function isBlankBefore(text, position) {
    return text.substring(text.lastIndexOf("\n", position - 1) + 1, position).trim() === "";
}

// The range grown to whole lines, without the last line's break. A range that ends where a line begins leaves that
// line out.
function wholeLines(text, start, end) {
    const last = end > start && text[end - 1] === "\n" ? end - 1 : end;
    const close = text.indexOf("\n", last);
    return { "start": start === 0 ? 0 : text.lastIndexOf("\n", start - 1) + 1, "end": close < 0 ? text.length : close };
}

function linesIn(text, start, end) {
    const range = wholeLines(text, start, end);
    return text.substring(range.start, range.end).split("\n");
}

// One line moved by so many steps, to the left when negative.
function shifted(line, steps) {
    if (steps < 0)
        return line.replace(new RegExp("^(\t| {1," + -steps * step.length + "})"), "");
    return line === "" ? line : step.repeat(steps) + line;
}

// The function that makes those lines comments or, when all of them are, takes the marks away.
function commenter(lines) {
    const isComment = line => /^\s*\/\//.test(line);
    const used = lines.filter(line => line.trim() !== "");
    if (used.length > 0 && used.every(isComment))
        return line => line.replace(/\/\/ ?/, "");
    return line => line.trim() === "" ? line : line.replace(/^\s*/, "$&" + comment);
}
