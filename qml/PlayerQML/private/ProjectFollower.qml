// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQml 2.15
import "../SharedVars.js" as SS

/// Follows, with sharing on, the cloud revisions of the projects that a playing document needs, and the account's
/// choice of project for this player. A project started by the command line is followed by nobody.
QtObject {
    id: root

    property string project
    // The account has chosen it, and it is not here yet; empty for none. What plays goes on meanwhile.
    property string awaited: ""
    property var playing: null
    property var followed: []

    property ProjectFinder finder: ProjectFinder {
        onFound: root.show(project)
    }

    readonly property string user: CAPI.getSSetting("userEmail")
    readonly property string player: CAPI.getSSetting("playerUID")
    readonly property LoggingCategory log: LoggingCategory { name: "nuvex.shell" }
    readonly property bool follows: user !== "" && CAPI.getBSetting("shareFolder") && SS.startedProject === ""

    function projectsToFollow(document) {
        const projects = document && document.listOfProjectsToUpdate ? [].concat(document.listOfProjectsToUpdate) : [];
        return projects.concat([project, awaited]).filter((name, at, all) => name !== "" && all.indexOf(name) === at);
    }

    // `document` is the playing document's root item, or null.
    function start(document) {
        if (!follows)
            return;
        follow(document);
        SS.playersSubscription = SS.subscribeToPlayerProject(user, player, (owner, self, name) => choose(name));
    }

    // `name` may be that of a project without its dots.
    function choose(name) {
        finder.find(name, CAPI.getProjectList().filter(isHere));
    }

    function isHere(name) {
        return name !== "" && CAPI.fileExist(CAPI.getWorkDirectory() + "/" + name + "/" + SS.qmlFileName);
    }

    function show(name) {
        const own = CAPI.getSSetting("lastProject");
        awaited = name !== own && isHere(own) && !isHere(name) ? name : "";
        follow(playing);
        if (awaited === "")
            SS.showProject(user, player, name);
        else
            console.info(log, "waits for", awaited);
    }

    // Shows the awaited project if it has come. False when there is none.
    function showAwaited() {
        const hasCome = isHere(awaited);
        if (hasCome)
            show(awaited);
        return hasCome;
    }

    // Follows what `document` needs, in place of what the last one needed.
    function follow(document) {
        playing = document;
        const wanted = projectsToFollow(document);
        if (!follows || wanted.join("/") === followed.join("/"))
            return;
        SS.projectSubscriptions.forEach(SS.unsubscribe);
        SS.projectSubscriptions = wanted.map(name => SS.subscribeToProjectRevision(user, name));
        followed = wanted;
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
