// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "../components"
import "qrc:/Nuvex/Components/private/feed/limits.js" as Limits

/// A test case on items that ask a server. Their pauses are short, so that no test waits for minutes.
ComponentCase {
    id: testCase

    property string place

    // Path of an address that no other test function has asked for or kept an answer of.
    function path(name) {
        return place + "/" + name;
    }

    function initTestCase() {
        Limits.settleTime = 10;
        Limits.firstRetry = 60;
        Limits.longestRetry = 400;
        Limits.shortestPeriod = 150;
        Limits.answerTime = 700;
    }

    function cleanupTestCase() {
        Limits.settleTime = 300;
        Limits.firstRetry = 5000;
        Limits.longestRetry = 300000;
        Limits.shortestPeriod = 60000;
        Limits.answerTime = 30000;
    }

    function begin() {
        place = "/" + name + Math.floor(Math.random() * 1e9);
        fixture.recordWarnings();
    }

    function init() {
        begin();
    }
}
