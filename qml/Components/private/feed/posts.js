.pragma library
// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Reads the JSON of services that search short messages, in any of the shapes that they publish:
// - a list of statuses as the Mastodon API returns it (public tag timelines need no key);
// - Twitter's search API version 1.1: "statuses", each with its "user";
// - Twitter's search API version 2: "data", with the authors in "includes.users".
.import "json.js" as Json
.import "limits.js" as Limits
.import "plaintext.js" as PlainText
.import "rss.js" as Rss

/// What `text` tells: a map with "entries", a list of maps with "name", "account" (as "@jane"), "text", "avatar" (an
/// address on the web or "") and "time" (milliseconds since 1970, 0 when unknown). Messages marked as sensitive are
/// left out. null when it is no such answer.
function read(text) {
    const posts = _posts(Json.parsed(text));
    if (!posts)
        return null;
    const entries = posts.filter(post => post && post.sensitive !== true && post.possibly_sensitive !== true)
                         .map(_entry);
    return { entries: entries.filter(entry => entry.text !== "").slice(0, Limits.entries) };
}

/// The tag that comes nearest to a phrase: its letters and digits, without blanks.
function tagOf(phrase) {
    return phrase.replace(/[\s#@!-\/:-?\[-`{-~]+/g, "");
}

// The messages of an answer, each with its author as "user"; null when there is no list of them.
function _posts(answer) {
    if (Array.isArray(answer))
        return answer.slice(0, 4 * Limits.entries);
    if (answer && Array.isArray(answer.statuses))
        return answer.statuses.slice(0, 4 * Limits.entries);
    return answer && Array.isArray(answer.data) ? _withAuthors(answer) : null;
}

function _withAuthors(answer) {
    const users = answer.includes && Array.isArray(answer.includes.users) ? answer.includes.users : [];
    return answer.data.slice(0, 4 * Limits.entries).map(post => ({
        text: post && post.text,
        created_at: post && post.created_at,
        possibly_sensitive: post && post.possibly_sensitive,
        user: users.find(user => user && post && user.id === post.author_id)
    }));
}

function _entry(post) {
    const author = post.account || post.user || {};
    const handle = PlainText.plain(author.acct || author.screen_name || author.username, Limits.titleLength);
    const name = PlainText.plain(author.display_name || author.name, Limits.titleLength);
    return {
        name: name || handle,
        account: handle === "" ? "" : "@" + handle,
        text: PlainText.plain(post.content || post.full_text || post.text, Limits.textLength),
        avatar: PlainText.webAddress(author.avatar || author.profile_image_url_https || author.profile_image_url),
        time: _time(String(post.created_at || ""))
    };
}

// Version 1.1 writes "Wed Oct 10 20:19:24 +0000 2018", the others RFC 3339.
function _time(text) {
    const parts = /^\w{3} (\w{3}) (\d{2}) (\d{2}:\d{2}:\d{2}) ([+-]\d{4}) (\d{4})$/.exec(text);
    return Rss.timeOf(parts ? [parts[2], parts[1], parts[5], parts[3], parts[4]].join(" ") : text);
}
