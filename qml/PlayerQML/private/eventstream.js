// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
.pragma library

/// Longest line that is kept, in characters; the event of a longer one is dropped.
const maxLineLength = 10 * 1024 * 1024;

/// Reader of a realtime database's event stream (WHATWG server-sent events).
///
/// Returns an object whose feed(chunk) takes the stream's text in pieces of any size and returns the values of
/// the "put" events that the piece completes, in order. Other events and unreadable values are left out.
function reader() {
    let pieces = [];          // of the line that has not ended yet
    let pendingLength = 0;
    let lineIndex = 0;        // within the event
    let isPut = false;
    let afterReturn = false;  // the last chunk ended with CR, perhaps half of a CRLF

    function keep(piece) {
        pieces.push(piece);
        pendingLength += piece.length;
        if (pendingLength > maxLineLength) {
            forgetLine();
            isPut = false;
        }
    }

    function forgetLine() {
        pieces = [];
        pendingLength = 0;
    }

    function startAnew() {
        forgetLine();
        lineIndex = 0;
    }

    function takeLine(line, values) {
        if (line === "") {
            lineIndex = 0;
            return;
        }
        if (lineIndex === 0)
            isPut = line === "event: put";
        else if (lineIndex === 1 && isPut)
            takeValue(line, values);
        ++lineIndex;
    }

    function takeValue(line, values) {
        const value = valueOf(line);
        if (value !== undefined)
            values.push(value);
    }

    // A value that is whole counts before its line end has come.
    function takeWholeValue(values) {
        const last = pieces.length > 0 ? pieces[pieces.length - 1] : "";
        if (lineIndex !== 1 || !isPut || last.charAt(last.length - 1) !== "}")
            return;
        const line = pieces.join("");
        if (valueOf(line) === undefined)
            return;
        takeLine(line, values);
        forgetLine();
    }

    // A stream that was cut within a line and opened again begins with an event of its own; but a line may also
    // go on with a text that only looks like one.
    function isNewStream(chunk) {
        if (chunk.indexOf("event: ") !== 0)
            return false;
        const goesOn = lineIndex === 1 && isPut && pieces.length > 0;
        return !goesOn || valueOf(pieces.join("") + chunk.split(/[\r\n]/, 1)[0]) === undefined;
    }

    function feed(chunk) {
        if (afterReturn && chunk.charAt(0) === "\n")
            chunk = chunk.substring(1);
        afterReturn = chunk.charAt(chunk.length - 1) === "\r";
        if (isNewStream(chunk))
            startAnew();
        const values = [];
        const lines = chunk.split(/\r\n|\r|\n/);
        const rest = lines.pop();
        for (let i = 0; i < lines.length; ++i) {
            keep(lines[i]);
            const line = pieces.join("");
            forgetLine();
            takeLine(line, values);
        }
        keep(rest);
        takeWholeValue(values);
        return values;
    }

    return { feed: feed };
}

/// The member "data" of an event's data line; undefined when the line is not readable.
function valueOf(line) {
    try {
        return JSON.parse(line.substring("data: ".length)).data;
    } catch (error) {
        return undefined;
    }
}
