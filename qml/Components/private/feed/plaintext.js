.pragma library
// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Turns marked-up text from outside into words for the screen.
.import "limits.js" as Limits
.import "xml.js" as Xml

/// `markup`, HTML or plain, as one line of plain text of at most `length` characters; a longer one ends with "…".
/// Tags go, scripts and styles go with their content, characters that only steer (controls, changes of the writing
/// direction) go too.
function plain(markup, length) {
    const text = _withoutTags(String(markup || "").slice(0, Limits.markupLength));
    return shortened(_visible(Xml.decoded(text)), length);
}

/// `text` cut to at most `length` characters, at the end of a word where there is one near.
function shortened(text, length) {
    if (text.length <= length)
        return text;
    const cut = text.slice(0, length - 1).replace(/[\ud800-\udbff]$/, "");
    const wordEnd = cut.lastIndexOf(" ");
    return (wordEnd > length * 0.7 ? cut.slice(0, wordEnd) : cut) + "…";
}

/// `text` if it is the address of something on the web, else "": nothing from outside may name a local file.
function webAddress(text) {
    const address = String(text || "").trim();
    if (/^\/\/[^\/]/.test(address))
        return "https:" + address;
    return address.length < 2048 && /^https?:\/\/[^\s"'<>]+$/i.test(address) ? address : "";
}

/// Address of the first picture in HTML `markup`; "" when there is none.
function firstPicture(markup) {
    const found = /<img\b[^<>]*\bsrc\s*=\s*["']([^"'<>]*)["']/i
        .exec(String(markup || "").slice(0, Limits.markupLength));
    return found ? webAddress(Xml.decoded(found[1])) : "";
}

function _withoutTags(markup) {
    return _withoutHidden(markup).replace(/<(?:br|\/p|\/div|\/li|\/h[1-6]|\/tr)\b[^<>]*>/gi, " ")
                                 .replace(/<[\/!]?[a-zA-Z][^<>]*>/g, "");
}

// Without comments, scripts and styles. One that does not end takes the rest with it.
function _withoutHidden(markup) {
    const starts = /<(?:!--|(script|style|iframe|noscript|template)\b)/gi;
    let result = "";
    let at = 0;
    for (let found = starts.exec(markup); found; found = starts.exec(markup)) {
        result += markup.slice(at, found.index);
        at = _hiddenEnd(markup, found);
        starts.lastIndex = at;
    }
    return result + markup.slice(at);
}

function _hiddenEnd(markup, start) {
    const ends = start[1] ? new RegExp("</" + start[1] + "\\b[^<>]*>", "gi") : /-->/g;
    ends.lastIndex = start.index;
    return ends.exec(markup) ? ends.lastIndex : markup.length;
}

function _visible(text) {
    return text.replace(/[\u00ad\u202a-\u202e\u2066-\u2069\ufeff\ufff9-\ufffb]/g, "")
               .replace(/[\s\u0000-\u001f\u007f-\u009f\u2028\u2029]+/g, " ").trim();
}
