// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Looks what a server has at an address, without fetching it, as a worker beside the screen's thread. The message is
// the address; back comes a text that is another when something else is there, "" while there is nothing. The request
// ends with the worker, its connection too.

WorkerScript.onMessage = function(address) {
    const request = new XMLHttpRequest();
    request.onreadystatechange = function() {
        if (request.readyState !== XMLHttpRequest.DONE)
            return;
        const marks = ["Last-Modified", "Content-Length", "ETag"].map(name => request.getResponseHeader(name));
        WorkerScript.sendMessage(request.status === 200 ? "there " + marks.join(" ") : "");
    };
    request.open("HEAD", address);
    request.send();
};
