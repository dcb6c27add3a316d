// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtTest 1.15
import "qrc:/Nuvex/Components/private/menu/entries.js" as Entries

ComponentCase {
    id: test
    name: "Menus"

    ListModel {
        id: listed
        ListElement { name: "Tea"; price: "2.10" }
        ListElement { name: "Cake"; price: "3.50" }
    }

    // All texts that are drawn in `item`.
    function texts(item) {
        if (!item.visible || item.opacity === 0)
            return [];
        var found = item.text !== undefined ? [item.text] : [];
        for (var i = 0; i < item.children.length; ++i)
            found = found.concat(texts(item.children[i]));
        return found;
    }

    function shows(item, text) {
        return texts(item).indexOf(text) >= 0;
    }

    function test_entries_data() {
        return [
            { tag: "member", entry: { name: "Tea" }, name: "name", text: "Tea" },
            { tag: "number", entry: { price: 2 }, name: "price", text: "2" },
            { tag: "no member", entry: { name: "Tea" }, name: "price", text: "" },
            { tag: "null member", entry: { name: null }, name: "name", text: "" },
            { tag: "plain text", entry: "Tea", name: "name", text: "Tea" },
            { tag: "plain text, other member", entry: "Tea", name: "price", text: "" },
            { tag: "nothing", entry: undefined, name: "name", text: "" }
        ];
    }
    function test_entries(data) {
        compare(Entries.text(data.entry, data.name, "name"), data.text);
    }

    function menus() {
        return ["CartaMenu", "MenuSlideshow", "Carousel", "GridOrganizer"];
    }

    function models() {
        var many = [];
        for (var i = 0; i < 10000; ++i)
            many.push({ name: "Entry " + i, price: i });
        return [
            { name: "empty", model: [], first: "" },
            { name: "null", model: null, first: "" },
            { name: "list model", model: listed, first: "Tea" },
            { name: "hostile", model: [{ name: "<b>bold</b><img src='x'>" }], first: "<b>bold</b><img src='x'>" },
            { name: "odd entries", model: [null, undefined, {}, { name: [] }, { name: "Tea" }], first: "" },
            { name: "ten thousand", model: many, first: "Entry 0" }
        ];
    }

    function test_anyModel_data() {
        var rows = [];
        menus().forEach(function(menu) {
            models().forEach(function(row) {
                rows.push({ tag: menu + ", " + row.name, menu: menu, model: row.model, first: row.first });
            });
        });
        return rows;
    }
    function test_anyModel(data) {
        var item = make(data.menu + " { width: 500; height: 400 }");
        item.model = data.model;
        waitForRendering(item, 100);
        if (data.first !== "")
            tryVerify(function() { return shows(item, data.first); }, 3000, texts(item).join());
        verify(count(item) < 400, count(item) + " items");
    }

    function count(item) {
        var sum = 1;
        for (var i = 0; i < item.children.length; ++i)
            sum += count(item.children[i]);
        return sum;
    }

    function test_longListTurnsItsPages() {
        var model = [];
        for (var i = 0; i < 12; ++i)
            model.push({ name: "Entry " + i, price: "1" });
        var menu = make("CartaMenu { height: 300; pageTime: 1000 }");
        menu.model = model;
        tryVerify(function() { return shows(menu, "Entry 0") && !shows(menu, "Entry 11"); });
        tryVerify(function() { return shows(menu, "Entry 11"); }, 20000);
        tryVerify(function() { return menu.contentY <= menu.originY - menu.topMargin + 1; }, 20000);
    }

    function test_partsOfFontsAreKept() {
        var menu = make("CartaMenu { nameFont.pixelSize: 44 }");
        compare(menu.nameFont.pixelSize, 44);
        compare(menu.nameFont.family, "Manrope");
        verify(menu.nameFont.bold);
    }

    function test_marksTakeTurns() {
        var menu = make("MenuSlideshow { showTime: 500; model: [{ name: 'a' }, { name: 'b' }] }");
        tryCompare(menu, "currentIndex", 1);
        tryCompare(menu, "currentIndex", 0);
        menu.model = [{ name: "x" }];
        compare(menu.currentIndex, 0);
    }

    function test_carouselTurnsWhileSeen() {
        var ring = make("Carousel { showTime: 500 }");
        tryCompare(ring, "currentIndex", 1);
        ring.visible = false;
        var index = ring.currentIndex;
        wait(700);
        compare(ring.currentIndex, index);
        ring.visible = true;
        tryVerify(function() { return ring.currentIndex !== index; });
    }

    function test_gridFillsItsPlace_data() {
        return [
            { tag: "six", entries: 6, columns: 3, shown: 6, pages: 1 },
            { tag: "one", entries: 1, columns: 3, shown: 1, pages: 1 },
            { tag: "too many", entries: 20, columns: 3, shown: 6, pages: 4 },
            { tag: "absurd columns", entries: 2, columns: -3, shown: 1, pages: 2 }
        ];
    }
    function test_gridFillsItsPlace(data) {
        var model = [];
        for (var i = 0; i < data.entries; ++i)
            model.push({ name: "Tile " + i });
        var grid = make("GridOrganizer { width: 640; height: 330; animated: false }");
        grid.columns = data.columns;
        grid.model = model;
        compare(grid.pages, data.pages);
        var tiles = texts(grid).filter(function(text) { return /^Tile/.test(text); });
        compare(tiles.length, data.shown);
    }

    function test_gridTurnsPages() {
        var grid = make("GridOrganizer { width: 640; height: 330; pageTime: 1000; columns: 1; model: [{ name: 'a' }, { name: 'b' }] }");
        compare(grid.pages, 2);
        tryCompare(grid, "page", 1);
        grid.model = [{ name: "a" }];
        compare(grid.page, 0);
    }

    function test_entryTexts_data() {
        return [1, 2, 3, 4].map(function(i) { return { tag: "MenuItem" + i }; });
    }
    function test_entryTexts(data) {
        var entry = make(data.tag + " { name: 'A very long name that does not fit its place, whatever the size of the card'; "
                         + "price: '1234.50'; image: '' }");
        verify(shows(entry, "1234.50"));
        waitForRendering(entry);
        checkInside(entry, entry);
    }

    // No text leaves the entry.
    function checkInside(item, entry) {
        if (item.visible && item.text !== undefined && item.paintedWidth > 0) {
            var place = item.mapToItem(entry, 0, 0, item.paintedWidth, item.paintedHeight);
            verify(place.x >= -1 && place.x + place.width <= entry.width + 1, item.text + " " + place);
        }
        for (var i = 0; i < item.children.length; ++i)
            checkInside(item.children[i], entry);
    }
}
