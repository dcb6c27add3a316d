// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQml 2.15
import "../SharedVars.js" as SS

/// Follows, with sharing on, the cloud revisions of the projects that a playing document needs, and the account's
/// choice of project for this player. A project started by the command line is followed by nobody.
QtObject {
    id: root

    property string project
    property var followed: []
    // Outlives this object in the answers that are still to come.
    property var life: ({ "isOver": false })

    readonly property string user: CAPI.getSSetting("userEmail")
    readonly property string player: CAPI.getSSetting("playerUID")
    readonly property bool follows: CAPI.getBSetting("shareFolder") && SS.startedProject === ""

    function projectsToFollow(document) {
        const projects = document && document.listOfProjectsToUpdate ? [].concat(document.listOfProjectsToUpdate) : [];
        return projects.includes(project) ? projects : projects.concat(project);
    }

    // Begins with the account's choice, once this player's own project has been told: what was chosen before
    // must not come back. `document` is the playing document's root item, or null.
    function start(document) {
        if (!follows)
            return;
        follow(document);
        const ownLife = life;
        SS.setPlayerProject(user, player, project, () => {
            if (!ownLife.isOver)
                SS.playersSubscription = SS.subscribeToPlayerProject(user, player);
        });
    }

    // Follows what `document` needs, in place of what the last one needed.
    function follow(document) {
        const wanted = projectsToFollow(document);
        if (!follows || wanted.join("/") === followed.join("/"))
            return;
        SS.projectSubscriptions.forEach(SS.unsubscribe);
        SS.projectSubscriptions = wanted.map(name => SS.subscribeToProjectRevision(user, name));
        followed = wanted;
    }

    function stop() {
        life.isOver = true;
        SS.projectSubscriptions.forEach(SS.unsubscribe);
        SS.unsubscribe(SS.playersSubscription);
        SS.projectSubscriptions = [];
        SS.playersSubscription = null;
    }

    function reportRevision(revision) {
        SS.firebaseSet(SS.playerPath(user, player), {"revision": revision});
    }

    Component.onDestruction: stop()
}
