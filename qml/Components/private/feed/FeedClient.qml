// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQml 2.15
import "answers.js" as Answers
import "limits.js" as Limits
import "../picture/media.js" as Media

/// Keeps the answer of a service up to date while its item is seen. The last good answer stays through every failure,
/// and through restarts of the program; after a failure the client tries again, at doubling pauses, for ever.
Item {
    id: root

    /// Address on the web (http, https), or a file of the project; "" for none.
    property string address: ""
    /// Whether the answer is to be kept up to date.
    property bool active: false
    /// Milliseconds between two good answers.
    property int period: 600000
    /// Turns the text of an answer into a map with "entries"; null when it is not what it should be.
    property var read: function(text) { return null; }
    /// The last good answer; null until there is one. One without entries replaces nothing.
    readonly property alias answer: state.answer
    /// Failures since the last good answer.
    readonly property alias failures: state.failures

    /// Asks again at the next opportunity.
    function refresh() {
        state.dueAt = Date.now();
        plan();
    }

    function begin() {
        cancel();
        state.answer = null;
        state.time = 0;
        state.failures = 0;
        // Items that show the same do not all ask at once: the first answer serves them all.
        state.dueAt = Date.now() + Limits.settleTime * (1 + 2 * Math.random());
        const kept = root.address === "" ? null : Answers.recall(root.address);
        if (kept)
            adopt(kept);
        plan();
    }

    // A kept answer counts as one of the time when it came; one from the future, as the clock was set back, as old.
    function adopt(kept) {
        state.answer = kept.answer;
        state.time = kept.time;
        if (isFresh(kept, pauseAfterSuccess()))
            state.dueAt = kept.time + pauseAfterSuccess();
    }

    function isFresh(kept, duration) {
        const age = Date.now() - kept.time;
        return age >= 0 && age < duration;
    }

    function plan() {
        clock.stop();
        if (!root.active || root.address === "")
            return cancel();
        const latest = Math.max(pauseAfterSuccess(), Limits.longestWish);
        clock.interval = line.active ? Limits.answerTime : Math.max(1, Math.min(state.dueAt - Date.now(), latest));
        clock.start();
    }

    function pauseAfterSuccess() {
        return Math.max(Limits.shortestPeriod, root.period);
    }

    function ask() {
        const kept = Answers.recall(root.address);
        if (kept && kept.time > state.time && isFresh(kept, pauseAfterSuccess() / 2))
            succeed(kept.answer, kept.time);
        else if (/^https?:/i.test(root.address))
            send();
        else
            take(CAPI.readTextFile(Media.address(root.address)).slice(0, Limits.answerBytes));
    }

    function send() {
        line.active = true;
        line.item.sendMessage({ address: root.address, limit: Limits.answerBytes });
        plan();
    }

    function finish(message) {
        if (!line.active)
            return;
        if (message.reason === "")
            take(message.text);
        else
            fail(message.reason, message.wish);
    }

    function take(text) {
        const answer = root.read(text);
        if (!answer)
            return fail("the answer is not what was expected");
        const time = Date.now();
        if (answer.entries.length > 0)
            Answers.keep(root.address, answer, time);
        succeed(answer, time);
    }

    function succeed(answer, time) {
        cancel();
        state.failures = 0;
        state.time = time;
        if (answer.entries.length > 0)
            state.answer = answer;
        state.dueAt = time + pauseAfterSuccess();
        plan();
    }

    function fail(reason, wish) {
        cancel();
        if (state.failures === 0)
            console.warn(log, "no news from", root.address + ":", reason);
        const pause = Math.min(Limits.firstRetry * Math.pow(2, Math.min(state.failures, 30)), Limits.longestRetry);
        const wanted = wish > 0 ? Math.min(wish * 1000, Limits.longestWish) : 0;
        state.dueAt = Date.now() + Math.max(pause * (0.8 + 0.4 * Math.random()), wanted);
        ++state.failures;
        plan();
    }

    function cancel() {
        line.active = false;
    }

    visible: false
    onActiveChanged: plan()
    onAddressChanged: {
        if (state.isComplete)
            begin();
    }
    Component.onCompleted: {
        state.isComplete = true;
        begin();
    }

    QtObject {
        id: state
        property bool isComplete: false
        property var answer: null
        property real time: 0
        property int failures: 0
        // When the next request is due, as Date.now() counts.
        property real dueAt: 0
    }

    Timer {
        id: clock
        onTriggered: line.active ? root.fail("no answer in time") : root.ask()
    }

    // A worker for each request. Only its end closes a connection on which nothing comes: a request that is merely
    // aborted keeps it, and a server gets no more than six.
    Loader {
        id: line
        active: false
        sourceComponent: WorkerScript {
            source: "request.js"
            onMessage: root.finish(messageObject)
        }
    }

    LoggingCategory {
        id: log
        name: "nuvex.components"
    }
}
