// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "../../SharedVars.js" as SS
import "limits.js" as Limits
import "players.js" as Players

/// Screenshots that show what their players showed before: asks the players for new ones by a remote command, and looks
/// whether they have come, one after the other. What does not come stays out of date.
Item {
    id: root

    property PlayerList players
    property bool active: false
    // By the player's key: the project that it shows now; the generation of its screenshot in the cloud, once known,
    // "" for none; when to ask for a new one, and the pause after that.
    property var outdated: ({})
    property var queue: []

    function expect(player, project) {
        const entry = {project: project, generation: undefined, askAt: Date.now() + Limits.firstScreenshot,
                       pause: Limits.firstScreenshot};
        outdated = Object.assign({}, outdated, {[player]: entry});
        look();
    }

    function forget(player) {
        const others = Object.assign({}, outdated);
        delete others[player];
        outdated = others;
    }

    function look() {
        if (queue.length > 0 || deadline.running)
            return;
        queue = Object.keys(outdated);
        lookAtNext();
    }

    function lookAtNext() {
        if (queue.length === 0)
            return;
        const player = queue[0];
        queue = queue.slice(1);
        const http = new XMLHttpRequest();
        http.onreadystatechange = () => {
            if (http.readyState !== XMLHttpRequest.DONE)
                return;
            deadline.stop();
            if (http.status === 200 || http.status === 404)
                take(player, http.getResponseHeader("X-Goog-Generation") || "");
            else
                lookAtNext();
        };
        http.open("GET", CAPI.getDownloadUrl(Players.screenshot(players.user, player)));
        deadline.request = http;
        deadline.start();
        http.send();
    }

    function take(player, generation) {
        const entry = outdated[player];
        if (entry && entry.generation === undefined)
            entry.generation = generation;
        if (entry && generation !== "" && generation !== entry.generation)
            forget(player);
        else if (entry && Date.now() >= entry.askAt && isLive(player))
            return ask(player, entry);
        lookAtNext();
    }

    // A player that is silent would answer too late, and its next commands would be lost.
    function isLive(player) {
        const known = players.find(player);
        return known !== undefined && Players.isLive(known.heartbeat, Date.now());
    }

    function ask(player, entry) {
        entry.pause *= 2;
        entry.askAt = Date.now() + entry.pause;
        const command = Players.screenshotCommand(SS.key(entry.project));
        SS.firebaseSet(SS.playerPath(players.user, player), {"command": command}, lookAtNext, deadline);
    }

    RequestDeadline {
        id: deadline
    }

    Timer {
        interval: Limits.screenshotLook
        running: root.active && Object.keys(root.outdated).length > 0
        repeat: true
        onTriggered: root.look()
    }
}
