.pragma library
// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Reads news feeds: RSS 2.0, RSS 1.0 (RDF) and Atom (RFC 4287), with the pictures of Media RSS and enclosures.
.import "limits.js" as Limits
.import "plaintext.js" as PlainText
.import "xml.js" as Xml

/// What `text` tells: a map with "title" and "entries", a list of maps with "title", "summary", "picture" (an address
/// on the web or "") and "time" (milliseconds since 1970, 0 when unknown). null when it is no feed.
function read(text) {
    const root = Xml.parse(text);
    const channel = root && _channel(root);
    if (!channel)
        return null;
    const items = _items(root, channel).slice(0, Limits.entries).map(_entry);
    return {
        title: PlainText.plain(Xml.textOf(channel, "title"), Limits.titleLength),
        entries: items.filter(entry => entry.title !== "")
    };
}

/// Milliseconds since 1970 of a date as RFC 822 or RFC 3339 writes it; 0 when it is neither.
function timeOf(text) {
    const parts = /(\d{1,2})\s+([A-Za-z]{3})[a-z]*\s+(\d{2,4})\s+(\d{1,2}):(\d{2})(?::(\d{2}))?\s*([+-]\d{4})?/
        .exec(text);
    if (!parts)
        return /^\d{4}-\d{2}-\d{2}/.test(text) ? Date.parse(text) || 0 : 0;
    const month = _months.indexOf(parts[2].toLowerCase());
    const year = Number(parts[3]) + (parts[3].length === 2 ? 2000 : 0);
    const zone = Number(parts[7] || 0);
    const offset = Math.trunc(zone / 100) * 60 + zone % 100;
    return month < 0 ? 0 : Date.UTC(year, month, Number(parts[1]), Number(parts[4]), Number(parts[5]) - offset,
                                    Number(parts[6] || 0));
}

const _months = ["jan", "feb", "mar", "apr", "may", "jun", "jul", "aug", "sep", "oct", "nov", "dec"];

// The element that carries the feed's title.
function _channel(root) {
    if (root.name === "feed" || root.name.endsWith(":feed"))
        return root;
    return root.name === "rss" || root.name === "rdf:RDF" ? Xml.child(root, "channel") : null;
}

function _items(root, channel) {
    const inside = Xml.childrenOf(channel, channel === root ? "entry" : "item");
    return root.name === "rdf:RDF" ? inside.concat(Xml.childrenOf(root, "item")) : inside;
}

function _entry(item) {
    const body = Xml.textOf(item, "description", "summary", "content:encoded", "content");
    const title = PlainText.plain(Xml.textOf(item, "title"), Limits.titleLength);
    const summary = PlainText.plain(body, Limits.textLength);
    return {
        title: title === "" ? PlainText.shortened(summary, Limits.titleLength) : title,
        summary: title === "" ? "" : summary,
        picture: _picture(item),
        time: timeOf(Xml.textOf(item, "pubDate", "published", "updated", "dc:date"))
    };
}

function _picture(item) {
    const group = Xml.child(item, "media:group") || item;
    const candidates = [].concat(
        _largestFirst(Xml.childrenOf(item, "media:content").concat(Xml.childrenOf(group, "media:content"))),
        _largestFirst(Xml.childrenOf(item, "media:thumbnail").concat(Xml.childrenOf(group, "media:thumbnail"))),
        Xml.childrenOf(item, "enclosure"),
        Xml.childrenOf(item, "link").filter(link => link.attributes.rel === "enclosure"));
    const addresses = candidates.filter(_showsPicture)
        .map(element => PlainText.webAddress(element.attributes.url || element.attributes.href));
    const written = ["content:encoded", "description", "content", "summary"]
        .map(name => PlainText.firstPicture(Xml.textOf(item, name)));
    return addresses.concat(written).find(address => address !== "") || "";
}

function _largestFirst(elements) {
    return elements.sort((one, other) => (Number(other.attributes.width) || 0) - (Number(one.attributes.width) || 0));
}

function _showsPicture(element) {
    const kind = element.attributes.medium || element.attributes.type || "";
    const address = element.attributes.url || element.attributes.href || "";
    return element.name === "media:thumbnail" || /^image/.test(kind)
        || (kind === "" && /\.(jpe?g|png|gif|webp)(\?|$)/i.test(address));
}
