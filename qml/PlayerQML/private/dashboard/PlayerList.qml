// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "../../SharedVars.js" as SS
import "limits.js" as Limits
import "players.js" as Players

/// The players of the account as the database last had them, and those of them that are to be shown, in `rows`.
Item {
    id: root

    property string user
    property string filter
    property int show: Players.Show.all
    property bool bySilence: false
    // Whether the answers are to be kept new.
    property bool active: false

    property double now: Date.now()
    property bool isKnown: false
    property bool hasFailed: false
    property bool isReading: false
    property int count: 0
    // Those that have the words of the filter, and those of them that are live.
    property int namedCount: 0
    property int liveCount: 0
    property var players: []
    // What `rows` has.
    property var shown: []
    readonly property alias rows: rows
    // Whether some players have the same name, so that it stands in a line of its own.
    readonly property bool hasNamesakes: players.some(player => player.host !== "")

    // All of `rows` is about to be exchanged, or has been.
    signal aboutToReset()
    signal reset()
    // A player that was known shows another project or another revision, or is to.
    signal switched(string player, string project)
    // The first answer, or the answer to a first question that was asked again, has come.
    signal answered()

    function read() {
        if (isReading)
            return;
        isReading = true;
        SS.getPlayers(user, takeAnswer, deadline);
    }

    function takeAnswer(success, result) {
        isReading = false;
        hasFailed = !success;
        if (success) {
            exchangePlayers(Players.playersOf(result));
            isKnown = true;
        }
        answered();
    }

    function exchangePlayers(wanted) {
        const known = new Map(players.map(player => [player.player, player]));
        players = Players.labelled(wanted);
        arrange();
        players.forEach(player => {
            if (known.has(player.player) && Players.hasSwitched(player, known.get(player.player)))
                switched(player.player, player.project);
        });
    }

    function find(key) {
        return players.find(player => player.player === key);
    }

    // What a player is called in a sentence.
    function nameOf(key) {
        const player = find(key);
        if (!player)
            return Players.nameOf(key);
        return player.host === "" ? player.label : qsTr("%1 of %2").arg(player.label).arg(player.host);
    }

    // Shows what fits, each at its place: tiles that stay where they are stay as they are.
    function arrange() {
        now = Date.now();
        count = players.length;
        const named = Players.named(players, filter);
        namedCount = named.length;
        liveCount = named.filter(player => Players.isLive(player.heartbeat, now)).length;
        const wanted = Players.arranged(named, show, bySilence, now);
        if (wanted.length === shown.length && wanted.every((player, index) => player.player === shown[index].player))
            update(wanted);
        else
            exchange(wanted);
        shown = wanted;
    }

    function update(wanted) {
        wanted.forEach((player, index) => {
            if (["heartbeat", "project", "label"].some(role => player[role] !== shown[index][role]))
                rows.set(index, player);
        });
    }

    function exchange(wanted) {
        aboutToReset();
        rows.clear();
        if (wanted.length > 0)
            rows.append(wanted);
        reset();
    }

    function remove(key) {
        exchangePlayers(players.filter(player => player.player !== key));
    }

    function setProject(key, project) {
        exchangePlayers(players.map(player => player.player === key ? Object.assign({}, player, {project: project})
                                                                     : player));
    }

    onFilterChanged: typing.restart()
    onShowChanged: arrange()
    onBySilenceChanged: arrange()

    ListModel {
        id: rows
    }

    RequestDeadline {
        id: deadline
    }

    Timer {
        id: typing
        interval: Limits.typingPause
        onTriggered: root.arrange()
    }

    Timer {
        interval: Limits.agePeriod
        running: root.active
        repeat: true
        onTriggered: root.now = Date.now()
    }

    Timer {
        interval: Limits.refreshPeriod
        running: root.active && root.isKnown
        repeat: true
        onTriggered: root.read()
    }
}
