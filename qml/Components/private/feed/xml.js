.pragma library
// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Reads XML as feeds have it in the wild: what does not match is passed over, what is cut off counts as far as it goes.
// Declared entities are never expanded and nothing is ever fetched, so a document can grow by nothing but its own
// length. Time is linear in the length of the text.
.import "limits.js" as Limits

/// The root element of a document; null when there is none. An element is a map with "name" (with its prefix, as
/// "media:content"), "attributes" (a map), "children" (its elements) and "content" (elements and texts in their order).
function parse(text) {
    const reader = { text: text, at: 0, count: 0, open: [_element("")] };
    while (reader.at >= 0 && reader.count < Limits.xmlElements)
        _readNext(reader);
    return reader.open[0].children[0] || null;
}

/// The first child of `element` with one of `names`, in the order of the names; null when there is none.
function child(element, ...names) {
    for (const name of names) {
        const found = element.children.find(candidate => candidate.name === name);
        if (found)
            return found;
    }
    return null;
}

/// All children of `element` with that name.
function childrenOf(element, name) {
    return element.children.filter(candidate => candidate.name === name);
}

/// The text of the first child with one of `names`, with that of the elements in it, trimmed; "" when there is none.
function textOf(element, ...names) {
    const found = child(element, ...names);
    return found ? _text(found).trim() : "";
}

/// `text` with the named and numbered character references of XML and of common HTML resolved. Others stay.
function decoded(text) {
    return text.replace(/&(#?[0-9A-Za-z]{1,10});/g, (reference, name) => {
        if (name.charAt(0) === "#")
            return _character(name);
        return _named.hasOwnProperty(name) ? _named[name] : reference;
    });
}

const _named = {
    amp: "&", lt: "<", gt: ">", quot: "\"", apos: "'", nbsp: " ", hellip: "…", ndash: "–", mdash: "—",
    lsquo: "‘", rsquo: "’", sbquo: "‚", ldquo: "“", rdquo: "”", bdquo: "„", laquo: "«", raquo: "»",
    bull: "•", middot: "·", copy: "©", reg: "®", trade: "™", deg: "°", euro: "€", pound: "£", shy: "",
    auml: "ä", ouml: "ö", uuml: "ü", Auml: "Ä", Ouml: "Ö", Uuml: "Ü", szlig: "ß", eacute: "é", egrave: "è",
    ecirc: "ê", agrave: "à", aacute: "á", acirc: "â", ccedil: "ç", ntilde: "ñ", oacute: "ó", iacute: "í",
    uacute: "ú", oslash: "ø", aring: "å", aelig: "æ"
};

function _character(name) {
    const code = /^#x/i.test(name) ? parseInt(name.slice(2), 16) : parseInt(name.slice(1), 10);
    const isUsable = code > 0 && code <= 0x10ffff && (code < 0xd800 || code > 0xdfff);
    return isUsable ? String.fromCodePoint(code) : "�";
}

function _element(name) {
    return { name: name, attributes: {}, children: [], content: [] };
}

function _text(element) {
    const gap = /^(?:\w+:)?(?:p|div|br|li|h[1-6]|tr)$/i.test(element.name) ? " " : "";
    return gap + element.content.map(part => typeof part === "string" ? part : _text(part)).join("") + gap;
}

// Takes the characters up to the next mark into the innermost open element, and the mark.
function _readNext(reader) {
    const mark = reader.text.indexOf("<", reader.at);
    const end = mark < 0 ? reader.text.length : mark;
    if (end > reader.at)
        _innermost(reader).content.push(decoded(reader.text.slice(reader.at, end)));
    reader.at = mark;
    if (mark >= 0)
        _readMark(reader);
}

function _readMark(reader) {
    if (reader.text.startsWith("<!--", reader.at))
        _skipTo(reader, "-->");
    else if (reader.text.startsWith("<![CDATA[", reader.at))
        _readCharacterData(reader);
    else if (reader.text.startsWith("<?", reader.at))
        _skipTo(reader, "?>");
    else if (reader.text.startsWith("<!", reader.at))
        _skipDeclaration(reader);
    else
        _readTag(reader);
}

function _innermost(reader) {
    return reader.open[reader.open.length - 1];
}

function _skipTo(reader, mark) {
    const end = reader.text.indexOf(mark, reader.at + 2);
    reader.at = end < 0 ? -1 : end + mark.length;
}

function _readCharacterData(reader) {
    const start = reader.at + 9;
    _skipTo(reader, "]]>");
    const end = reader.at < 0 ? reader.text.length : reader.at - 3;
    _innermost(reader).content.push(reader.text.slice(start, end));
}

// A document type with everything that it declares inside its brackets.
function _skipDeclaration(reader) {
    const bracket = reader.text.indexOf("[", reader.at);
    const end = reader.text.indexOf(">", reader.at);
    if (bracket >= 0 && bracket < end)
        _skipTo(reader, "]>");
    else
        reader.at = end < 0 ? -1 : end + 1;
}

function _readTag(reader) {
    const end = _tagEnd(reader.text, reader.at);
    if (end < 0) {
        reader.at = -1;
        return;
    }
    const tag = reader.text.slice(reader.at + 1, end);
    const name = /^\/?([^\s\/>=]*)/.exec(tag)[1];
    reader.at = end + 1;
    if (tag.charAt(0) === "/")
        _close(reader, name);
    else
        _open(reader, name, tag);
}

// Position of the ">" that ends the tag at `start`; one inside a quoted value is not it.
function _tagEnd(text, start) {
    const marks = /[>"']/g;
    marks.lastIndex = start + 1;
    for (let found = marks.exec(text); found; found = marks.exec(text)) {
        if (found[0] === ">")
            return found.index;
        const closing = text.indexOf(found[0], marks.lastIndex);
        if (closing < 0)
            return -1;
        marks.lastIndex = closing + 1;
    }
    return -1;
}

function _open(reader, name, tag) {
    const element = _element(name);
    element.attributes = _attributes(tag);
    _innermost(reader).children.push(element);
    _innermost(reader).content.push(element);
    ++reader.count;
    if (tag.charAt(tag.length - 1) !== "/" && reader.open.length < Limits.xmlDepth)
        reader.open.push(element);
}

// Closes the innermost element of that name and everything left open in it; without one, nothing.
function _close(reader, name) {
    for (let i = reader.open.length - 1; i > 0; --i) {
        if (reader.open[i].name === name) {
            reader.open.length = i;
            return;
        }
    }
}

// Each character is looked at a bounded number of times, whatever the tag holds.
function _attributes(tag) {
    const result = {};
    const name = /[^\s"'=<>\/]+/g;
    const value = /\s*=\s*(?:"([^"]*)"|'([^']*)')/y;
    for (let i = 0; i < Limits.xmlAttributes; ++i) {
        const found = name.exec(tag);
        if (!found)
            break;
        value.lastIndex = name.lastIndex;
        const given = value.exec(tag);
        if (!given)
            continue;
        result[found[0]] = decoded(given[1] !== undefined ? given[1] : given[2]);
        name.lastIndex = value.lastIndex;
    }
    return result;
}
