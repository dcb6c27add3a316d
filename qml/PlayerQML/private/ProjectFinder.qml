// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQml 2.15
import Nuvex.Native 1.1
import "../SharedVars.js" as SS
import "limits.js" as Limits

/// Finds the project that a player's entry in the database names: there names have no dots, but projects may.
QtObject {
    id: root

    // What is looked for in the cloud; empty for nothing.
    property string sought: ""

    property Transfers cloud: Transfers {
        onListed: root.take(entries.map(entry => entry.name))
        onFinished: {
            if (root.sought !== "")
                again.start();
        }
    }

    property Timer again: Timer {
        id: again
        interval: Limits.lookUpPeriod
        onTriggered: root.cloud.listProjects()
    }

    signal found(string project)

    // One that is called so goes before those that are only written so; undefined without either.
    function match(name, projects) {
        return projects.includes(name) ? name : projects.find(project => SS.withoutDots(project) === name);
    }

    // Ends with found(), at once when the project is one of those `here`; else when the account's projects could be
    // listed, also if none of them is it.
    function find(name, here) {
        const known = name === "" ? "" : match(name, here);
        again.stop();
        sought = known === undefined ? name : "";
        if (known === undefined)
            cloud.listProjects();
        else
            found(known);
    }

    function take(projects) {
        const name = sought;
        sought = "";
        if (name !== "")
            found(match(name, projects) || name);
    }
}
