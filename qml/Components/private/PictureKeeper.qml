// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQml 2.15
import "limits.js" as Limits
import "media.js" as Media
import "presence.js" as Presence

/// Looks after the picture of its parent, an Image: gives it up while its slide is absent, shows a quiet placeholder
/// while it cannot be loaded, and loads it when its file comes back.
Item {
    id: root

    /// The Image that is looked after.
    property Image image: parent
    readonly property bool isAbsent: Presence.presenceOf(root) === Presence.absent
    readonly property bool isMissing: image.status === Image.Error
    // What a script has set while the picture was given up.
    property url setMeanwhile

    function loadAgain() {
        away.when = true;
        away.when = false;
    }

    function noteFailure() {
        var better = Media.address(root.image.source);
        if (better !== String(root.image.source))
            root.image.source = better;
    }

    function comeBack() {
        away.when = false;
        if (root.setMeanwhile != "")
            root.image.source = root.setMeanwhile;
        root.setMeanwhile = "";
    }

    anchors.fill: parent
    onIsAbsentChanged: {
        if (isAbsent)
            away.when = true;
        else
            comeBack();
    }
    onIsMissingChanged: {
        if (isMissing)
            noteFailure();
    }

    // Takes the address away and puts it, or the binding that gave it, back.
    Binding {
        id: away
        target: root.image
        property: "source"
        value: ""
        when: false
        restoreMode: Binding.RestoreBindingOrValue
    }

    Connections {
        target: root.image
        function onStatusChanged() {
            if (root.image.status === Image.Ready)
                retry.forget();
        }
        function onSourceChanged() {
            if (!away.when || root.image.source == "")
                return;
            root.setMeanwhile = root.image.source;
            root.image.source = "";
        }
    }

    Retry {
        id: retry
        source: root.image.source
        failed: root.isMissing && root.visible
        onWorthTrying: root.loadAgain()
    }

    Loader {
        anchors.fill: parent
        active: root.isMissing
        sourceComponent: Placeholder {}
    }
}
