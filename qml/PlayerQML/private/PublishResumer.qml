// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQml 2.15
import Nuvex.Native 1.1
import "../SharedVars.js" as SS

/// Ends what the program's last run has begun to publish: brings the rest to the cloud and tells the players. What
/// begins in this run is its pages' affair.
QtObject {
    id: root

    // Projects; null as long as they have not been looked up.
    property var left: null
    property bool isCounting: false
    property RequestTimer timeOut: RequestTimer {}

    property Transfers transfers: Transfers {
        onFinished: root.take(error, cancelled)
    }

    readonly property string user: CAPI.getSSetting("userEmail")
    readonly property LoggingCategory log: LoggingCategory { name: "nuvex.shell" }

    // Called now and then, when the cloud has just answered.
    function goOn() {
        if (transfers.running || isCounting || (left && left.length === 0))
            return;
        const begun = transfers.begunPublishes();
        left = (left || begun).filter(project => begun.includes(project));
        if (left.length > 0)
            transfers.resume(left[0]);
    }

    function take(error, cancelled) {
        const project = left[0];
        left = left.slice(1);
        if (cancelled)
            console.warn(log, "publish", project, "again: the last time was cut off, and it has changed in the cloud");
        else if (error !== "")
            left = left.concat(project);
        else
            countUp(project);
    }

    function countUp(project) {
        isCounting = true;
        SS.updateRev(user, project, (success, result) => {
            isCounting = false;
            if (success) {
                console.info(log, "ended the publish of", project);
                transfers.endPublish(project);
                CAPI.doOneShareDown(project, String(result.revision));
            } else {
                left = left.concat(project);
            }
        }, timeOut);
    }
}
