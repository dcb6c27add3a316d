.pragma library
// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Reads the JSON of Flickr's public photo feed.
.import "json.js" as Json
.import "limits.js" as Limits
.import "plaintext.js" as PlainText

/// Sizes of a photo by the name that documents use, with the ending that the service gives to its file.
const sizes = { small: "_m", medium: "_z", large: "_b" };

/// What `text` tells: a map with "title" and "entries", a list of maps with "title", "author" and "picture" (an address
/// on the web, of the photo's small size). null when it is no such answer.
function read(text) {
    const answer = _parsed(text);
    if (!answer || !Array.isArray(answer.items))
        return null;
    return {
        title: PlainText.plain(answer.title, Limits.titleLength),
        entries: answer.items.slice(0, Limits.entries).map(_entry).filter(entry => entry.picture !== "")
    };
}

/// Address of a photo in another size; one that does not name its size stays.
function inSize(picture, size) {
    return picture.replace(/_[a-z](\.[a-z]{3,4})$/i, (sizes[size] || sizes.large) + "$1");
}

// The service escapes apostrophes as JavaScript may and JSON must not, and can wrap its answer in a call.
function _parsed(text) {
    const json = text.trim().replace(/^jsonFlickrFeed\(/, "").replace(/\)$/, "");
    return Json.parsed(json) || Json.parsed(json.replace(/\\'/g, "'"));
}

function _entry(item) {
    const media = item && item.media ? item.media.m : "";
    return {
        title: PlainText.plain(item && item.title, Limits.titleLength),
        author: _author(String(item && item.author || "")),
        picture: PlainText.webAddress(media)
    };
}

// "nobody@flickr.com ("Jane Doe")" is Jane Doe.
function _author(text) {
    const name = /\("(.*)"\)\s*$/.exec(text.slice(0, 2 * Limits.titleLength));
    return PlainText.plain(name ? name[1] : text.replace(/^\S+@\S+\s*/, ""), Limits.titleLength);
}
