// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtTest 1.15
import "qrc:/Nuvex/Components" as All

ComponentCase {
    id: test
    name: "WebView"

    Component {
        id: view

        All.BasicWebView {
            width: 300
            height: 200
        }
    }

    function page(name, color) {
        CAPI.writeToFile("<html><body style='background: " + color + "'></body></html>", name);
        return fixture.url(name);
    }

    function test_showsAPage() {
        var item = createTemporaryObject(view, test, { url: page("page.html", "rgb(0, 200, 0)") });
        verify(!item.settled);
        tryVerify(function() { return item.isLoaded; }, 20000);
        tryVerify(function() { return colorAt(item, 150, 100) === "#00c800"; }, 5000);
        item.visible = false;
        tryVerify(function() { return !item.isLoaded; }, 2000, "the browser is gone");
    }

    function test_missingPageIsQuietAndComesBack() {
        ignoreWarning(/cannot show .*late\.html/);
        var item = createTemporaryObject(view, test, { url: fixture.url("late.html") });
        tryVerify(function() { return item.hasFailed; }, 20000);
        compare(item.isLoaded, false);
        verify(item.settled);
        page("late.html", "rgb(200, 0, 0)");
        tryVerify(function() { return item.isLoaded; }, 20000);
        tryVerify(function() { return colorAt(item, 150, 100) === "#c80000"; }, 5000);
        expectWarnings(1, /late\.html/);
        CAPI.removeFile("late.html");
    }

    function test_withoutAddressNoBrowserIsLoaded() {
        var item = createTemporaryObject(view, test);
        waitForRendering(item);
        verify(item.settled);
        verify(!item.isWanted);
    }
}
