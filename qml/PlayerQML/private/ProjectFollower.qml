// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQml 2.15
import "../SharedVars.js" as SS

/// Follows, with sharing on, the cloud revisions of the projects that a playing document needs, and the account's
/// choice of project for this player. A project started by the command line is followed by nobody.
QtObject {
    id: root

    property string project

    readonly property string user: CAPI.getSSetting("userEmail")
    readonly property string player: CAPI.getSSetting("playerUID")

    function projectsToFollow(document) {
        const projects = document && document.listOfProjectsToUpdate ? [].concat(document.listOfProjectsToUpdate) : [];
        return projects.includes(project) ? projects : projects.concat(project);
    }

    // `document` is the playing document's root item, or null.
    function start(document) {
        if (!CAPI.getBSetting("shareFolder") || SS.startedProject !== "")
            return;
        SS.projectSubscriptions = projectsToFollow(document).map(name => SS.subscribeToProjectRevision(user, name));
        SS.setPlayerProject(user, player, project);
        SS.playersSubscription = SS.subscribeToPlayerProject(user, player);
    }

    function stop() {
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
