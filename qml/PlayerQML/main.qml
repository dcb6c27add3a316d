// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQml 2.15
import QtQuick.Controls 1.4
import Nuvex.Deployment 1.0
import "private"
import "private/limits.js" as Limits
import "SharedVars.js" as SS

/// The program's root: a stack of pages. Decides what is shown first and keeps the heartbeat going.
StackView {
    id: root

    // What the command line asks to open in place of what the settings say: "play", "edit", "gallery" or "";
    // and the project to do it with, as CAPI.setBaseFolder() takes it.
    property string startAction: ""
    property string startProject: ""
    // This player's address on the network; the host keeps it up to date.
    property string networkAddress: ""
    property alias hearbeatTimer: heartbeat

    readonly property LoggingCategory log: LoggingCategory { name: "nuvex.shell" }

    // The pages that were compiled, by name. They are kept: when the engine forgets what it has compiled, as at each
    // update of a project, a page that is compiled anew has another SharedVars.js than those that are open.
    readonly property var pages: ({})
    // Not kept: they share a script with the panels that a document's components bring, which are always of today.
    readonly property var editors: ["EditorPage", "RADEditorPage"]
    // Whether a page is being made, which may run a document's scripts.
    property bool isOpening: false
    // Whether the engine forgets as soon as it may.
    property bool forgetsLater: false

    function page(name) {
        if (!pages[name])
            pages[name] = Qt.createComponent(Qt.resolvedUrl("./" + name + ".qml"));
        return pages[name];
    }

    function mayForget() {
        return !isOpening && find(page => editors.indexOf(page.objectName) >= 0) === null;
    }

    // Whether the engine may forget now what it has compiled; else it does when that may be. Compiles all pages that
    // use SharedVars.js.
    function prepareForgetting() {
        forgetsLater = !mayForget();
        ["ConnectedPlayers", "LoginPage", "PlayerPage", "ProjectsPage"].forEach(page);
        return !forgetsLater;
    }

    function forgetIfDue() {
        if (forgetsLater && mayForget())
            CAPI.clearComponentCache();
    }

    // Runs a script in this scope: remote commands reach SS, CAPI and the stack by their names.
    function evaluate(str) {
        eval(str);
    }

    // Shows a page, unless it is the one that is shown. Returns the page.
    function open(name) {
        if (currentItem.objectName === name)
            return currentItem;
        const item = editors.indexOf(name) >= 0 ? Qt.resolvedUrl(name + ".qml") : page(name);
        isOpening = true;
        push({"item": item, "immediate": true});
        isOpening = false;
        return currentItem;
    }

    // Plays a document of the project.
    function playDocument(document) {
        SS.qmlFileName = document;
        CAPI.trimComponentCache();
        open("PlayerPage");
        SS.isPlaying = true;
    }

    // A page that edits is shown again.
    function stopPlaying() {
        SS.isPlaying = false;
        SS.qmlFileName = CAPI.editorVersion();
    }

    function play() {
        playDocument("main.qml");
    }

    function edit() {
        SS.qmlFileName = CAPI.editorVersion();
        CAPI.trimComponentCache();
        CAPI.createEditorFile();
        open(CAPI.isDevice() ? "EditorPage" : "RADEditorPage");
    }

    function openDashboard() {
        CAPI.trimComponentCache();
        open("ConnectedPlayers");
    }

    function identifyPlayer() {
        if (CAPI.getSSetting("playerUID") === "")
            CAPI.setSetting("playerUID", CAPI.hostName() + "_" + Date.now());
    }

    function openByCommandLine() {
        if (startAction !== "gallery") {
            SS.startedProject = startProject;
            CAPI.setBaseFolder(startProject);
        }
        if (startAction === "play")
            play();
        else if (startAction === "edit")
            edit();
        else
            open("GalleryPage");
    }

    // What opens the page that the settings start with; null when that is the main page.
    function startScreen() {
        const action = CAPI.getSSetting("doOnStart");
        const hasProject = CAPI.getSSetting("lastProject") !== "";
        if (action === "play" && hasProject)
            return play;
        if (action === "edit" && hasProject)
            return edit;
        return action === "dashboard" ? openDashboard : null;
    }

    objectName: "theStackView"
    width: asw
    height: ash
    initialItem: Qt.resolvedUrl("./MainPage.qml")
    delegate: StackViewDelegate {}

    onCurrentItemChanged: {
        console.info(log, "page", currentItem ? currentItem.objectName : "none");
        Qt.callLater(forgetIfDue);
    }

    Component.onCompleted: {
        const user = CAPI.getSSetting("userEmail");
        SS.deployment = Deployment;
        identifyPlayer();
        const player = CAPI.getSSetting("playerUID");
        SS.commandsSubscription = SS.subscribeToPlayerCommand(user, player, root);
        heartbeat.start();
        if (Deployment.announces)
            CAPI.startLocalServer();
        if (startAction !== "") {
            openByCommandLine();
        } else if (user === "") {
            open("LoginPage").start = startScreen();
        } else {
            SS.firebaseSet(SS.playerPath(user, player), {"version": CAPI.getSSetting("version")});
            const start = startScreen();
            if (start)
                start();
        }
    }
    Component.onDestruction: SS.unsubscribe(SS.commandsSubscription)

    Heartbeat {
        id: heartbeat
        onAnswered: resumer.goOn()
    }

    PublishResumer {
        id: resumer
    }

    // Streams that end are opened again.
    Timer {
        interval: Limits.streamMending
        repeat: true
        running: Deployment.available
        onTriggered: SS.reopenEnded()
    }

    Instantiator {
        model: ["Arial-MT-Regular.ttf", "Atkins-Bold.otf", "Atkins-Regular.ttf", "BerkshireSwash-Regular.ttf",
            "Damion-Regular.ttf", "hotpizza.ttf", "Impact.ttf", "lobster.ttf", "Lora-Regular.ttf",
            "Merienda-Regular.ttf", "opensans-regular-webfont.ttf", "OstrichSans-Heavy.otf", "Roboto-Thin.ttf"]

        FontLoader {
            source: "qrc:////Nuvex/Components/fonts/" + modelData
        }
    }
}
