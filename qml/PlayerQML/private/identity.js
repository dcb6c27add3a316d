// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
.pragma library
//
// What the sign-in service's refusals mean. `result` is its answer as the shared script's calls hand it out.

// The service may add an explanation to a name: "WEAK_PASSWORD : ...".
function nameOf(result) {
    const error = result ? result.error : null;
    const message = error && error.message !== undefined ? error.message : error;
    return String(message || "").split(" : ")[0];
}

function reasons() {
    const wrong = qsTr("E-mail and password do not belong together. Whoever looks after this cloud can set a new "
                       + "password.");
    return {
        "EMAIL_NOT_FOUND": qsTr("There is no account with this e-mail. Press Sign Up to make one."),
        "INVALID_PASSWORD": wrong,
        "INVALID_LOGIN_CREDENTIALS": wrong,
        "INVALID_EMAIL": qsTr("This is not an e-mail address."),
        "MISSING_EMAIL": qsTr("The e-mail address is missing."),
        "MISSING_PASSWORD": qsTr("The password is missing."),
        "WEAK_PASSWORD": qsTr("The password needs at least six characters."),
        "EMAIL_EXISTS": qsTr("There is an account with this e-mail already. Press Login."),
        "USER_DISABLED": qsTr("This account has been switched off."),
        "OPERATION_NOT_ALLOWED": qsTr("This cloud lets nobody make an account. Ask whoever looks after it for one."),
        "TOO_MANY_ATTEMPTS_TRY_LATER": qsTr("Too many tries. Wait for some minutes, then try again.")
    };
}

/// The refusal as the service words it, for a short look.
function text(result) {
    const error = result ? result.error : null;
    if (error === null || error === undefined)
        return "... error connecting";
    return JSON.stringify(error.message !== undefined ? error.message : error);
}

/// The refusal in words, and what to do about it.
function words(result) {
    const name = nameOf(result);
    if (name === "")
        return qsTr("The sign-in service does not answer. Look at the network connection, then try again.");
    return reasons()[name] || qsTr("The sign-in service refuses: %1").arg(name);
}
