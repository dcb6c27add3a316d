// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQml 2.15
import "limits.js" as Limits

/// Keeps a document that ends the program from doing so at every start. The setting "earlyDeaths" counts how often, one
/// behind the other, the program died in the first seconds of playing; after some of these a start waits before it
/// plays, so that what has been published since can be pulled.
QtObject {
    id: root

    // Shown while it waits; empty while it does not.
    property string obstacle: ""

    // Not for bindings: nothing is signalled.
    readonly property var state: ({"hasWaited": false, "isProving": false})

    property Timer waiting: Timer {
        interval: Limits.earlyDeathPause
        onTriggered: root.released()
    }

    property Timer proving: Timer {
        interval: Limits.earlyDeath
        onTriggered: root.forget()
    }

    // It has waited long enough.
    signal released()

    // Whether a document may be loaded now. After the first call that said no, each says yes: something has come, or
    // released() was emitted.
    function mayPlay() {
        const deaths = parseInt(CAPI.getSSetting("earlyDeaths"), 10) || 0;
        if (deaths >= Limits.earlyDeaths && !state.hasWaited && !state.isProving)
            hold();
        else
            prove(state.isProving ? deaths : deaths + 1);
        return obstacle === "";
    }

    function hold() {
        state.hasWaited = true;
        obstacle = qsTr("The program has ended several times as soon as it played this. It waits for a new revision, "
                        + "and tries again in a minute.");
        console.warn(obstacle);
        waiting.start();
    }

    function prove(deaths) {
        obstacle = "";
        waiting.stop();
        state.isProving = true;
        CAPI.setSetting("earlyDeaths", String(deaths));
        proving.restart();
    }

    function forget() {
        if (state.isProving)
            CAPI.setSetting("earlyDeaths", "0");
        state.isProving = false;
    }

    Component.onDestruction: forget()
}
