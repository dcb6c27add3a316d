// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
.pragma library
.import "limits.js" as Limits

// The account's players as the dashboard shows them. A player is a map:
//     playerName, playerId   the entry's key before its first and after its last "_"
//     heartbeat              when it was last heard of, milliseconds since 1970; 0 for never
//     project                what it shows; "" for nothing
//     revision               the last revision of a project that it got from the cloud; "" for none
//     player                 the entry's key
//     label, host            what it is called here, and where that is not its name, its name; see labelled()

/// Which players are shown.
const Show = { all: 0, live: 1, silent: 2 };

/// The part of a player's name that says where it stands.
function nameOf(player) {
    return player.split("_")[0];
}

function playerOf(key, entry) {
    const record = entry || {};
    return {
        playerName: nameOf(key),
        playerId: key.split("_").pop(),
        heartbeat: parseInt(record.heartbeat, 10) || 0,
        project: typeof record.project === "string" ? record.project : "",
        revision: record.revision === undefined ? "" : String(record.revision),
        player: key
    };
}

/// The players in an answer of the database: an object from key to entry, or null.
function playersOf(answer) {
    return Object.keys(answer || {}).map(key => playerOf(key, answer[key]));
}

// What tells `texts` apart: of numbers their ends, as long as it takes and at least of four digits.
function telling(texts) {
    if (!texts.every(text => /^\d+$/.test(text)))
        return texts;
    const longest = Math.max(...texts.map(text => text.length));
    let ends = texts;
    for (let length = 4; length < longest; ++length) {
        ends = texts.map(text => text.slice(-length));
        if (new Set(ends).size === texts.length)
            return ends;
    }
    return texts;
}

/// The players with their labels: the name, or of those that share one the end of the rest of the key.
function labelled(players) {
    const labels = new Map();
    const keysByName = new Map();
    players.forEach(player => keysByName.set(player.playerName, []));
    players.forEach(player => keysByName.get(player.playerName).push(player.player));
    keysByName.forEach((keys, name) => {
        const ends = telling(keys.map(key => key.slice(name.length + 1)));
        keys.forEach((key, i) => labels.set(key, keys.length === 1 ? name : qsTr("Player %1").arg(ends[i])));
    });
    return players.map(player => {
        const label = labels.get(player.player);
        return Object.assign({}, player, {label: label, host: label === player.playerName ? "" : player.playerName});
    });
}

/// The script with which a player that shows a project, given by its key in the database, sends a screenshot.
function screenshotCommand(project) {
    return "if (SS.key(CAPI.getBaseProjectName()) === " + JSON.stringify(project) + ") CAPI.uploadScreenshot(300);";
}

function isLive(heartbeat, now) {
    return now - heartbeat < Limits.liveFor;
}

function color(heartbeat, now) {
    return isLive(heartbeat, now) ? "#2DB651" : "red";
}

/// How long ago something was, in its largest unit.
function age(heartbeat, now) {
    const s = Math.max(0, Math.round((now - heartbeat) / 1000));
    if (s < 60)
        return s + "s";
    if (s < 3600)
        return Math.round(s / 60) + "m";
    if (s < 86400)
        return Math.round(s / 3600) + "h";
    return Math.round(s / 86400) + "d";
}

/// Whether `player` shows something else than when it was `known`.
function hasSwitched(player, known) {
    return player.project !== "" && (player.project !== known.project || player.revision !== known.revision);
}

/// Where a player's screenshot lies in the cloud.
function screenshot(user, player) {
    return "NUVEX/users/" + user + "/screenshots/" + nameOf(player) + "_" + player.split("_").pop() + ".jpg";
}

/// Those of `players` that have all words of `filter` in name or project.
function named(players, filter) {
    const words = filter.toLowerCase().split(/\s+/);
    return players.filter(player => {
        const text = [player.player, player.label, player.project].join(" ").toLowerCase();
        return words.every(word => text.includes(word));
    });
}

function compareTexts(a, b) {
    return a < b ? -1 : (a > b ? 1 : 0);
}

function byName(a, b) {
    return compareTexts(a.sortKey, b.sortKey) || compareTexts(a.player.player, b.player.player);
}

// Those that are live count as heard of at the same moment, or tiles would change places with every heartbeat.
function bySilence(now) {
    const heard = entry => isLive(entry.player.heartbeat, now) ? now : entry.player.heartbeat;
    return (a, b) => heard(a) - heard(b) || byName(a, b);
}

// With numbers in a name in the order of their values.
function sortKey(name) {
    return name.toLowerCase().replace(/\d+/g, digits => digits.padStart(12, "0"));
}

/// Those of `players` that are to be shown, in order: by name, or the longest silent first.
function arranged(players, show, isBySilence, now) {
    const isWanted = player => show === Show.all || isLive(player.heartbeat, now) === (show === Show.live);
    const entries = players.filter(isWanted).map(player => ({ player: player, sortKey: sortKey(player.playerName) }));
    return entries.sort(isBySilence ? bySilence(now) : byName).map(entry => entry.player);
}
