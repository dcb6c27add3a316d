// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Asks a server, as a worker beside the screen's thread. The message is a map with "address" and "limit" (bytes). Back
// comes a map with "text", or "reason" (why there is none) and "wish" (the seconds that the server asks to wait). The
// request ends with the worker, its connection too.

function problem(status) {
    if (status === 200)
        return "";
    return status > 0 ? "status " + status : "no answer";
}

WorkerScript.onMessage = function(task) {
    const request = new XMLHttpRequest();
    let isOver = false;

    function finish(reason) {
        isOver = true;
        WorkerScript.sendMessage({ reason: reason, text: reason === "" ? request.responseText : "",
                                   wish: Number(request.getResponseHeader("Retry-After")) || 0 });
    }

    request.onreadystatechange = function() {
        if (isOver || request.readyState < XMLHttpRequest.LOADING)
            return;
        const size = Math.max(Number(request.getResponseHeader("Content-Length")), request.response.byteLength);
        if (size > task.limit)
            finish("the answer is too large");
        else if (request.readyState === XMLHttpRequest.DONE)
            finish(problem(request.status));
    };
    request.open("GET", task.address);
    // Of bytes the length is known without decoding them; the text is there all the same.
    request.responseType = "arraybuffer";
    request.send();
};
