// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
.pragma library
.import "private/eventstream.js" as EventStream
.import "private/limits.js" as Limits

// What the pages share, and the calls to the account's realtime database and to the sign-in service.
//
// Callbacks are called once as callback(success, result), never before the call has returned. A timer given to
// a call holds the request in its property `request` and runs until the answer; its handler aborts the request.

/// File that the player page loads from the project: "main.qml", or the editing frame's name.
var qmlFileName = "";
/// Kept for scripts that record what was done last.
var lastAction = "None";
/// True while the player page shows a project.
var isPlaying = false;
/// The native API.
var JCAPI = null;
/// Realtime subscriptions: this player's commands, revisions of its projects, its entry's project.
var commandsSubscription = null;
var projectSubscriptions = [];
var playersSubscription = null;
/// The singleton Deployment: `available`, `database`, `databaseCredential`, `identity`, `webApiKey`.
var deployment = null;
/// The project that the command line started, as CAPI.setBaseFolder() takes it; empty without one.
var startedProject = "";

// --- places in the database -------------------------------------------------------------------------------

/// `name` as the database's records have it.
function withoutDots(name) {
    return name.replace(/\./g, "");
}

/// `name` as a key of the database: without dots, and with the other characters that keys cannot have (Realtime
/// Database, "Structure data": $ # [ ] / and control characters) percent-encoded.
function key(name) {
    return withoutDots(name).replace(/[$#\[\]\/\x00-\x1f\x7f]/g, function(character) {
        return "%" + ("0" + character.charCodeAt(0).toString(16).toUpperCase()).slice(-2);
    });
}

// A place of the database whose parts are all there; who has no name, or one of dots alone, has no place.
function isPlace(path) {
    return path.split("/").indexOf("") < 0;
}

function playersPath(user) {
    return "Users/" + key(user) + "/Players";
}

function playerPath(user, player) {
    return playersPath(user) + "/" + key(player);
}

function projectsPath(user) {
    return "Users/" + key(user) + "/Projects";
}

function projectPath(user, project) {
    return projectsPath(user) + "/" + key(project);
}

// --- requests ---------------------------------------------------------------------------------------------

function cloudIsSetUp() {
    return deployment !== null && deployment.available;
}

function databaseUrl(child, query) {
    const path = encodeURI(child).replace(/[?#]/g, encodeURIComponent);
    return deployment.database + "/" + path + ".json?auth=" + deployment.databaseCredential + (query || "");
}

function identityUrl(operation) {
    return deployment.identity + "/identitytoolkit/v3/relyingparty/" + operation + "?key=" + deployment.webApiKey;
}

function parsed(text) {
    try {
        return JSON.parse(text);
    } catch (error) {
        return undefined;
    }
}

// Sends one request: {method, url, headers, body, resultWithoutBody}.
function send(request, callback, timer) {
    const http = new XMLHttpRequest();
    http.onreadystatechange = function() {
        if (http.readyState !== XMLHttpRequest.DONE)
            return;
        if (timer)
            timer.stop();
        const result = parsed(http.responseText);
        if (callback)
            callback(http.status === 200 && result !== undefined,
                     result === undefined ? request.resultWithoutBody : result);
    };
    http.open(request.method, request.url);
    for (const name in request.headers)
        http.setRequestHeader(name, request.headers[name]);
    if (timer) {
        timer.request = http;
        timer.start();
    }
    http.send(request.body);
}

function refuse(callback, reason) {
    if (callback)
        Qt.callLater(function() { callback(false, {"error": reason}); });
}

// Sends what `makeRequest` builds, or tells the callback that there is no cloud to send to.
function sendIfSetUp(makeRequest, callback, timer) {
    if (cloudIsSetUp())
        send(makeRequest(), callback, timer);
    else
        refuse(callback, "no cloud is set up");
}

function firebaseCall(child, callback, timer, call) {
    if (!isPlace(child)) {
        refuse(callback, "no such place in the database");
        return;
    }
    sendIfSetUp(function() {
        return {
            "method": call.method,
            "url": databaseUrl(child, call.query),
            "headers": call.headers || {},
            "body": call.body,
            "resultWithoutBody": {"error": "not conection"}
        };
    }, callback, timer);
}

/// Reads the place `child`; `query` is added to the address, for example "&shallow=true".
function firebaseGet(child, callback, timerTimeOut, query) {
    firebaseCall(child, callback, timerTimeOut, {"method": "Get", "query": query});
}

/// Merges the members of `json`, an object or its text, into the place `child`.
function firebaseSet(child, json, callback, timerTimeOut) {
    firebaseCall(child, callback, timerTimeOut, {
        "method": "Post",
        "headers": {"X-HTTP-Method-Override": "PATCH"},
        "body": typeof json === "string" ? json : JSON.stringify(json)
    });
}

/// Deletes the place `child`.
function firebaseDelete(child, callback, timerTimeOut) {
    firebaseCall(child, callback, timerTimeOut, {"method": "Delete"});
}

// --- account ----------------------------------------------------------------------------------------------

// Status 200 alone is no account: somebody in between may have answered.
function isAccount(result) {
    return result !== null && typeof result === "object" && typeof result.email === "string" && result.email !== "";
}

function identityCall(operation, email, password, callback, timer) {
    const take = function(success, result) {
        const isOther = success && !isAccount(result);
        callback(success && !isOther, isOther ? {} : result);
    };
    sendIfSetUp(function() {
        return {
            "method": "Post",
            "url": identityUrl(operation),
            "headers": {"Content-Type": "application/json"},
            "body": JSON.stringify({"email": email, "password": password, "returnSecureToken": true}),
            "resultWithoutBody": {}
        };
    }, take, timer);
}

/// Signs in; on success the account's e-mail becomes the setting "userEmail".
function login(email, password, callback, timerTimeOut) {
    identityCall("verifyPassword", email, password, function(success, result) {
        if (success)
            JCAPI.setSetting("userEmail", result.email);
        callback(success, result);
    }, timerTimeOut);
}

/// Makes an account and signs in to it.
function signupNewUser(email, password, callback, timerTimeOut) {
    identityCall("signupNewUser", email, password, function(success, result) {
        if (success)
            login(result.email, password, callback, timerTimeOut);
        else
            callback(false, result);
    }, timerTimeOut);
}

// --- players and projects ---------------------------------------------------------------------------------

/// Leaves the server's time in the player's entry.
function heartbeat(user, player, callback, timerTimeOut) {
    firebaseSet(playerPath(user, player), {"heartbeat": {".sv": "timestamp"}}, callback, timerTimeOut);
}

/// Reads the account's players: an object from player id to entry, or null.
function getPlayers(user, callback, timerTimeOut) {
    firebaseGet(playersPath(user), callback, timerTimeOut);
}

/// Deletes a player's entry.
function deletePlayer(user, player, callback, timerTimeOut) {
    firebaseDelete(playerPath(user, player), callback, timerTimeOut);
}

/// Says which project a player is to show.
function setPlayerProject(user, player, project, callback, timerTimeOut) {
    firebaseSet(playerPath(user, player), {"project": withoutDots(project)}, callback, timerTimeOut);
}

/// Counts a project's revision up; the first one is 0. Two editors at the same moment can count once.
function updateRev(user, project, callback, timerTimeOut) {
    const path = projectPath(user, project);
    firebaseGet(path, function(success, record) {
        if (!success) {
            callback(false, record);
            return;
        }
        const revision = record === null ? 0 : (parseInt(record.revision, 10) || 0) + 1;
        firebaseSet(path, {"revision": revision}, callback, timerTimeOut);
    }, timerTimeOut);
}

// --- realtime subscriptions -------------------------------------------------------------------------------

// What is followed, by its subscriber: {url, take, reader, opened and lastHeard (times, ms), reopenAt (likewise; of a
// stream that has ended), attempts (that have ended soon)}.
const streams = new Map();

// Calls `take` with each value that the place gets, the present one first. Returns the subscriber, which lives
// until unsubscribe(); null without a cloud, or such a place.
function subscribe(child, take) {
    const subscriber = cloudIsSetUp() && isPlace(child) ? JCAPI.newFirebaseSubscriber() : null;
    if (!subscriber)
        return null;
    const stream = {"url": databaseUrl(child), "take": take, "attempts": 0};
    streams.set(subscriber, stream);
    subscriber.dataReceived.connect(function(chunk) { hear(stream, chunk); });
    open(subscriber, stream);
    return subscriber;
}

function open(subscriber, stream) {
    stream.reader = EventStream.reader();
    stream.opened = stream.lastHeard = Date.now();
    stream.reopenAt = undefined;
    subscriber.subscribe(stream.url);
}

// An empty chunk says that the stream has ended. Whoever takes a value may end the subscription.
function hear(stream, chunk) {
    stream.lastHeard = Date.now();
    if (chunk === "") {
        planReopening(stream);
        return;
    }
    stream.reader.feed(chunk).forEach(function(value) {
        if (!stream.ended)
            stream.take(value);
    });
}

/// Ends a subscription; null is none.
function unsubscribe(subscriber) {
    if (!subscriber)
        return;
    if (streams.has(subscriber))
        streams.get(subscriber).ended = true;
    streams.delete(subscriber);
    subscriber.unsubscribe();
    subscriber.destroy();
}

function planReopening(stream) {
    if (stream.lastHeard - stream.opened >= Limits.streamLasts)
        stream.attempts = 0;
    const most = Math.min(Limits.reopenMost, Limits.reopenFirst * Math.pow(2, stream.attempts));
    stream.reopenAt = Date.now() + most * (1 + Math.random()) / 2;
    ++stream.attempts;
}

/// Opens the streams again that have ended; called now and then.
function reopenEnded() {
    streams.forEach(function(stream, subscriber) {
        if (Date.now() >= stream.reopenAt)
            open(subscriber, stream);
    });
}

// A stream that ended is opened again, and one in which not even a keep-alive came: its connection has gone without
// a word.
function checkUp(subscriber) {
    const stream = streams.get(subscriber);
    if (stream && (stream.reopenAt || Date.now() - stream.lastHeard >= Limits.streamSilence))
        open(subscriber, stream);
    else
        subscriber.checkUp();
}

/// Looks after every subscription; called when the cloud has just answered.
function checkUpSubscriptions() {
    [commandsSubscription, playersSubscription].concat(projectSubscriptions).forEach(function(subscriber) {
        if (subscriber)
            checkUp(subscriber);
    });
}

/// Fetches the project whenever its revision in the cloud changes.
function subscribeToProjectRevision(user, project) {
    return subscribe(projectPath(user, project) + "/revision", function(revision) {
        const text = String(revision);
        if (revision === null)
            return;
        if (text.length <= Limits.revisionLength)
            JCAPI.doOneShareDown(project, text);
        else
            console.warn("Not a revision:", shortened(text));
    });
}

/// The revision of a project that this computer got from the cloud or published last; empty when none is known.
function localRevision(project) {
    const work = JCAPI.getWorkDirectory();
    const file = work + "/../ShareFolder/" + project + "/record.json";
    const isHere = JCAPI.fileExist(work + "/" + project + "/dirmap") && JCAPI.fileExist(file);
    const record = isHere ? parsed(JCAPI.readTextFile(file)) : undefined;
    return record && typeof record.revision === "string" ? record.revision : "";
}

/// Calls `show`, else showProject(), as show(user, player, project), with the project that the player is to show
/// whenever its entry changes: the entry's, if somebody else has named it there, also while this player was off; else
/// its own, which the entry is told then. The entry's name has no dots.
function subscribeToPlayerProject(user, player, show) {
    return subscribe(playerPath(user, player) + "/project", function(value) {
        const own = JCAPI.getSSetting("lastProject");
        const isOwn = value === withoutDots(own);
        const isWish = !isOwn && isProjectName(value) && !wasTold(user, player, value);
        (show || showProject)(user, player, isWish ? value : own);
        if (isOwn)
            keepTold(user, player, value);
        else if (!isWish && own !== "")
            tellProject(user, player, own);
    });
}

/// Shows a project from now on, which its player's entry names.
function showProject(user, player, project) {
    if (project === JCAPI.getSSetting("lastProject"))
        return;
    keepTold(user, player, project);
    JCAPI.setSetting("lastProject", project);
    JCAPI.setBaseFolder(project);
    JCAPI.reloadPlayer();
}

// What this player knows to be in its entry is a setting: another name there is somebody else's.
function keepTold(user, player, project) {
    JCAPI.setSetting("toldProject", playerPath(user, player) + "/" + withoutDots(project));
}

function wasTold(user, player, project) {
    return JCAPI.getSSetting("toldProject") === playerPath(user, player) + "/" + project;
}

function tellProject(user, player, project) {
    setPlayerProject(user, player, project, function(success) {
        if (success)
            keepTold(user, player, project);
    });
}

function isProjectName(value) {
    if (typeof value !== "string" || value === "")
        return false;
    const isName = value.length <= Limits.nameLength && !/[\/\x00-\x1f]/.test(value) && value !== "." && value !== "..";
    if (!isName)
        console.warn("Not the name of a project:", shortened(value));
    return isName;
}

// A text of any length for the log.
function shortened(text) {
    const some = text.substring(0, Limits.logLength);
    return some === text ? text : some + "... (" + text.length + " characters)";
}

/// Runs the commands sent to the player in the scope of `evaluator`, which has a function evaluate(text).
function subscribeToPlayerCommand(user, player, evaluator) {
    return subscribe(playerPath(user, player) + "/command", function(command) {
        if (command)
            obey(String(command), user, player, evaluator);
    });
}

// A command that restarts the program is cleared first, so that the restarted player does not find it again.
function obey(command, user, player, evaluator) {
    const clear = function(done) { firebaseSet(playerPath(user, player), {"command": ""}, done); };
    if (command.indexOf("reStartApp") >= 0) {
        clear(function() { evaluator.evaluate(command); });
    } else {
        Qt.callLater(clear); // also when the command is cut off, which ends this function
        run(command, evaluator);
    }
}

// A mistake in a command must not keep it from being cleared.
function run(command, evaluator) {
    try {
        evaluator.evaluate(command);
    } catch (error) {
        console.warn("The command failed: " + shortened(String(error)));
    }
}
