// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtWebEngine 1.10
import "../limits.js" as Limits

/// The browser of a BasicWebView. Nothing of it shows but the page: no scroll bars, menus, dialogs, error pages.
WebEngineView {
    id: root

    /// The page to show; loading it again is tried with growing pauses as long as it fails.
    property string address: ""
    property bool isLoaded: false
    property bool hasFailed: false
    property int pause: Limits.firstRetry

    function load() {
        if (root.url == root.address)
            root.reload();
        else
            root.url = root.address;
    }

    function fail(reason) {
        if (!root.hasFailed)
            console.warn(log, "cannot show", root.address, reason);
        root.hasFailed = true;
        root.isLoaded = false;
        retry.restart();
    }

    visible: isLoaded
    backgroundColor: "transparent"
    settings.showScrollBars: false
    settings.errorPageEnabled: false
    settings.playbackRequiresUserGesture: false
    onAddressChanged: {
        hasFailed = false;
        isLoaded = false;
        pause = Limits.firstRetry;
        load();
    }
    onLoadingChanged: {
        if (loadRequest.status === WebEngineView.LoadFailedStatus) {
            fail(loadRequest.errorString);
        } else if (loadRequest.status === WebEngineView.LoadSucceededStatus) {
            hasFailed = false;
            isLoaded = true;
            pause = Limits.firstRetry;
        }
    }
    onRenderProcessTerminated: fail("its process ended")
    onContextMenuRequested: request.accepted = true
    onJavaScriptDialogRequested: {
        request.accepted = true;
        request.dialogReject();
    }
    onFeaturePermissionRequested: grantFeaturePermission(securityOrigin, feature, false)

    LoggingCategory {
        id: log
        name: "nuvex.components"
    }

    Timer {
        id: retry
        interval: root.pause
        onTriggered: {
            root.pause = Math.min(root.pause * 2, Limits.longestRetry);
            root.load();
        }
    }
}
