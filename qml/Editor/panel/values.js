.pragma library
// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Values as QML source writes them.

/// `text` between double quotes.
function quoted(text) {
    return JSON.stringify(String(text)).replace(/[\u2028\u2029]/g, mark => "\\u" + mark.charCodeAt(0).toString(16));
}

/// A number with at most `decimals` digits after the point.
function number(value, decimals) {
    return String(Number(Number(value).toFixed(decimals)));
}

/// A live value, a number, truth value, colour or text, as source; numbers with at most two decimals.
function literal(value) {
    return typeof value === "number" ? number(value, 2) : typeof value === "boolean" ? String(value) : quoted(value);
}

/// The text that `source` writes between quotes; undefined when it is anything but one quoted text.
function textIn(source) {
    if (!/^(?:"(?:[^"\\\n]|\\[^\n])*"|'(?:[^'\\\n]|\\[^\n])*')$/.test(source.trim()))
        return undefined;
    return eval(source.trim());
}

/// Whether `source` is a list or value without anything that has to be worked out: no names, calls or operators.
function isPlain(source) {
    const rest = source.replace(/"(?:[^"\\]|\\[^])*"|'(?:[^'\\]|\\[^])*'/g, "0")
                       .replace(/\/\*[^]*?\*\/|\/\/[^\n]*/g, "").replace(/[A-Za-z_]\w*\s*:/g, "")
                       .replace(/\b(?:true|false|null)\b/g, "0");
    return /^[\s\[\]{},:0-9.eE+-]*$/.test(rest);
}

/// The value of a plain `source`, its members in their order; undefined when it cannot be read.
function read(source) {
    try {
        return eval("(" + source + "\n)");
    } catch (fault) {
        return undefined;
    }
}

/// The texts of the entries of `source`, a plain list, with the comments at them.
function entryTexts(source) {
    const parts = source.trim().slice(1, -1).match(_listParts) || [];
    const texts = [""];
    let depth = 0;
    parts.forEach(part => {
        depth += /^[\[{]$/.test(part) ? 1 : /^[\]}]$/.test(part) ? -1 : 0;
        if (part === "," && depth === 0)
            texts.push("");
        else
            texts[texts.length - 1] += part;
    });
    return _withLastComment(texts.map(text => text.trim()));
}

// What stands behind the last comma is no entry: at most a comment.
function _withLastComment(texts) {
    const last = texts[texts.length - 1];
    if (last.replace(/\/\*[^]*?\*\/|\/\/[^\n]*/g, "").trim() !== "")
        return texts;
    return texts.slice(0, -1).map((text, i) => i < texts.length - 2 ? text : (text + " " + last).trim());
}

const _listParts = /"(?:[^"\\]|\\[^])*"|'(?:[^'\\]|\\[^])*'|\/\*[^]*?\*\/|\/\/[^\n]*|[^]/g;

/// `entries`, a list of objects with texts, numbers and truth values, in place of the list `written`: on one line when
/// that has entries on one line, else over several, the first of which is indented by `indentation`. Members that are
/// undefined or "" are left out. An entry that has one of `texts`, a list beside the entries', is written as that says.
function list(entries, indentation, texts, written) {
    const parts = entries.map((entry, i) => texts && texts[i] || _object(entry));
    if (parts.length === 0)
        return "[]";
    const line = /^\[( ?)[^\s\]].*\]$/.exec((written || "").trim());
    return line && !parts.some(_endsInComment) ? "[" + line[1] + parts.join(", ") + line[1] + "]"
                                               : _onLines(parts, indentation);
}

function _onLines(parts, indentation) {
    const lines = parts.map((part, i) => {
        const text = indentation + "    " + part;
        return i < parts.length - 1 && _endsInComment(text) ? text + "\n" + indentation + "    " : text;
    });
    return "[\n" + lines.join(",\n") + "\n" + indentation + "]";
}

function _endsInComment(text) {
    return text.match(_listParts).pop().startsWith("//");
}

function _object(entry) {
    if (typeof entry !== "object" || entry === null)
        return _value(entry);
    const members = Object.keys(entry).filter(name => entry[name] !== undefined && entry[name] !== "");
    return "{ " + members.map(name => name + ": " + _value(entry[name])).join(", ") + " }";
}

function _value(value) {
    if (Array.isArray(value))
        return "[" + value.map(_value).join(", ") + "]";
    return typeof value === "string" ? quoted(value)
         : typeof value === "object" && value !== null ? _object(value) : String(value);
}

// What a panel calls the value `name`, a name in camel case: "Slide left" for slideLeft.
function words(name) {
    const text = name.replace(/[A-Z]/g, letter => " " + letter.toLowerCase());
    return text[0].toUpperCase() + text.slice(1);
}
