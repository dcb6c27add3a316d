.pragma library
// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// What network items show in the editor while they have no answer yet, so that their look can be judged. On a screen
// they show none of this.

/// A forecast as forecast.js reads one, from the day of `now` (milliseconds since 1970) on.
function forecast(now) {
    const codes = [2, 0, 61, 80, 3, 1, 71, 95, 45, 2];
    const highs = [21, 24, 17, 18, 19, 22, 3, 20, 14, 23];
    const days = codes.map((code, i) => ({
        date: new Date(now + i * 86400000).toISOString().slice(0, 10),
        code: code,
        high: highs[i],
        low: highs[i] - 8
    }));
    return { current: { temperature: 21, code: 2, isDay: true }, offset: 0, entries: days };
}

/// A feed as rss.js reads one.
function news(now) {
    const lines = [
        [qsTr("The headline of the latest entry stands here"),
         qsTr("Below it stand the first lines of the entry's text, as far as there is room for them.")],
        [qsTr("A second entry, somewhat longer, so that its headline may take two lines"),
         qsTr("Pictures come from the feed, where it has any.")],
        [qsTr("Entries that do not fit follow on the next page"), qsTr("Pages turn by themselves.")],
        [qsTr("Texts of any language"), qsTr("Grüße, здравствуйте, こんにちは.")]
    ];
    return {
        title: qsTr("News"),
        entries: lines.map((line, i) => ({ title: line[0], summary: line[1], picture: "", time: now - i * 2700000 }))
    };
}

/// Messages as posts.js reads them.
function posts(now) {
    const lines = [
        ["Ada", "@ada", qsTr("Messages about the phrase appear here, the latest first.")],
        ["Grace", "@grace", qsTr("Each with its author, picture and time.")],
        ["Emmy", "@emmy", qsTr("A longer message runs over several lines; what does not fit ends with three points.")]
    ];
    return {
        entries: lines.map((line, i) => ({ name: line[0], account: line[1], text: line[2], avatar: "",
                                           time: now - i * 420000 }))
    };
}
