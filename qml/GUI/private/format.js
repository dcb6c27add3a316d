// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Numbers and paths as people read them.
.pragma library

const units = ["B", "KB", "MB", "GB", "TB"];

// 1536 -> "1.5 KB"
function bytes(count) {
    const step = Math.max(0, Math.min(units.length - 1, Math.floor(Math.log2(count) / 10)));
    const scaled = count / Math.pow(1024, step);
    return Number(scaled).toLocaleString(Qt.locale(), "f", step > 0 && scaled < 10 ? 1 : 0) + " " + units[step];
}

// file:///a/b -> [{name: "/", url: "file:///"}, {name: "a", url: "file:///a"}, {name: "b", url: "file:///a/b"}]
function crumbs(folder) {
    const parts = String(folder).replace(/^file:\/\//, "").split("/").filter(part => part !== "");
    let url = "file://";
    const result = [{ "name": "/", "url": "file:///" }];
    for (const part of parts) {
        url += "/" + part;
        result.push({ "name": decodeURIComponent(part), "url": url });
    }
    return result;
}

// file:///a/b -> file:///a; empty for the root.
function folderAbove(folder) {
    const steps = crumbs(folder);
    return steps.length < 2 ? "" : steps[steps.length - 2].url;
}
