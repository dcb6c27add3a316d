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

    // Everything below `item` for which `wanted` holds.
    function all(item, wanted) {
        return Array.prototype.reduce.call(item.children, (found, child) =>
            found.concat(wanted(child) ? [child] : [], all(child, wanted)), []);
    }

    function boxOf(item, root) {
        return item.mapToItem(root, 0, 0, item.width, item.height);
    }

    // What of the text `item` is drawn, in the coordinates of `root`; of two lines with dots behind them, the last.
    function inkOf(item, root) {
        if (item.lastTop > 0)
            return item.mapToItem(root, isMirrored(item) ? item.width - item.lastLength : 0, item.lastTop,
                                  item.lastLength, item.height - item.lastTop);
        const free = item.width - item.contentWidth;
        const isRight = isMirrored(item);
        const x = isRight ? free : item.effectiveHorizontalAlignment === Text.AlignHCenter ? free / 2 : 0;
        const y = item.verticalAlignment === Text.AlignVCenter ? (item.height - item.contentHeight) / 2 : 0;
        return item.mapToItem(root, x, y, item.contentWidth, item.contentHeight);
    }

    function isMirrored(item) {
        return item.effectiveHorizontalAlignment === Text.AlignRight;
    }

    function shownTexts(item) {
        return all(item, child => child.contentWidth > 0 && child.text !== undefined).filter(text => isSeen(text, item));
    }

    function isSeen(item, root) {
        return item === root || (item.visible && item.opacity > 0 && isSeen(item.parent, root));
    }

    readonly property var dishes: [
        { name: "Soup", price: "4" }, { name: "Grandmother's slow-cooked beef dumplings", price: "14,50 EUR", details: "In red wine" },
        { name: "Tea", price: "2", details: "Mint, sage or lemon balm from the garden behind the house, with honey from the roof" },
        { name: "Cake", price: "3" }, { name: "Bread", price: "1" }, { name: "Pie", price: "5", details: "Apple" }, { name: "Ice", price: "6" }
    ]

    function makeCarta(height, extra) {
        const ground = make("Rectangle { width: 500; height: " + height + "; color: 'lime'; property Item menu: children[0]; "
                            + "CartaMenu { anchors.fill: parent; title: 'Menu'; " + extra + " } }");
        ground.menu.model = dishes;
        waitForRendering(ground);
        return ground;
    }

    function pagesOf(menu) {
        return all(menu, item => item.starts !== undefined)[0];
    }

    function shownLines(menu) {
        return all(menu, item => item.most !== undefined && item.visible && item.opacity > 0).sort((a, b) => a.y - b.y);
    }

    // The shown lines begin below the title and end in the menu, none on another, none left out on the way round.
    function test_pages_data() {
        const rows = [];
        [130, 200, 290, 377, 460, 640].forEach(height => ["transparent", "black"].forEach(color => [0, 24].forEach(margin =>
            rows.push({ tag: height + ", " + color + ", margin " + margin, height: height, color: color, margin: margin }))));
        return rows;
    }
    function test_pages(data) {
        const menu = makeCarta(data.height, "backColor: '" + data.color + "'; bottomMargin: " + data.margin).menu;
        const pages = pagesOf(menu);
        let names = [];
        for (let page = 0; page < pages.starts.length; ++page) {
            pages.show(page);
            waitForRendering(menu, 50);
            const title = boxOf(menu.headerItem, menu);
            let end = title.y + title.height;
            compare(title.y, 0);
            fuzzyCompare(boxOf(shownLines(menu)[0], menu).y, end, 1);
            shownLines(menu).forEach(line => {
                const box = boxOf(line, menu);
                verify(box.y >= end - 1 && box.y + box.height <= menu.height + 1, line.name + " " + box + " on page " + page);
                end = box.y + box.height;
                names.push(line.name);
            });
        }
        compare(names, dishes.map(dish => dish.name));
        compare(pages.starts.length === 1, data.height === 640);
    }

    // Lines that fit but for the margin below them stay; one pixel less, and they are shared out evenly.
    function test_turnsOnlyWhereItHasTo() {
        const ground = makeCarta(900, "bottomMargin: 24; pageTime: 500");
        const end = boxOf(shownLines(ground.menu)[6], ground).y + shownLines(ground.menu)[6].height;
        ground.height = Math.ceil(end);
        waitForRendering(ground);
        wait(1800);
        compare([pagesOf(ground.menu).starts.length, shownLines(ground.menu).length], [1, 7]);
        ground.height = Math.ceil(end) - 2;
        tryVerify(() => shownLines(ground.menu).length > 2 && shownLines(ground.menu).length < 5);
        compare(pagesOf(ground.menu).starts.length, 2);
    }

    // Through two turns the title is drawn as it was, and no frame shows lines of two pages.
    function test_turn_data() {
        return [{ tag: "transparent" }, { tag: "black" }];
    }
    function test_turn(data) {
        const ground = makeCarta(320, "pageTime: 500; backColor: '" + data.tag + "'");
        const pages = pagesOf(ground.menu), title = ground.menu.headerItem;
        const isDrawn = (frame, x, y) => frame.pixel(x, y) !== frame.pixel(2, y);
        const rows = frame => {
            let drawn = "";
            for (let y = 0; y < title.height; y += 2) {
                for (let x = 30; x < 470; x += 2)
                    drawn += isDrawn(frame, x, y) ? 1 : 0;
            }
            return drawn;
        };
        const before = rows(grabImage(ground));
        verify(before.indexOf("1") > 0);
        const turned = [];
        for (let frames = 0; turned.length < 3 && frames < 400; ++frames) {
            verify(rows(grabImage(ground)) === before, "frame " + frames);
            const lines = shownLines(ground.menu).map(line => dishes.findIndex(dish => dish.name === line.name));
            verify(lines.every(pages.has), lines + " on page " + pages.page);
            if (turned[turned.length - 1] !== pages.page)
                turned.push(pages.page);
            wait(20);
        }
        compare(turned, [0, 1, 2]);
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

    // On every page the tiles stand side by side over the whole width and height: no hole, none on another.
    function test_gridFillsItsPlace_data() {
        return [
            { tag: "six", entries: 6, columns: 3, sizes: [6] },
            { tag: "one", entries: 1, columns: 3, sizes: [1] },
            { tag: "two rows", entries: 5, columns: 3, sizes: [5] },
            { tag: "still", entries: 20, columns: 3, sizes: [6], still: true },
            { tag: "four pages", entries: 19, columns: 3, sizes: [5, 5, 5, 4] },
            { tag: "one on the last page", entries: 7, columns: 2, sizes: [2, 2, 2, 1] },
            { tag: "absurd columns", entries: 2, columns: -3, sizes: [1, 1] },
            { tag: "none", entries: 0, columns: 3, sizes: [0] }
        ];
    }
    function test_gridFillsItsPlace(data) {
        const grid = make("GridOrganizer { width: 640; height: 330; animated: " + !data.still + " }");
        grid.columns = data.columns;
        grid.model = Array.from({ length: data.entries }, (nothing, i) => ({ name: "Tile " + i }));
        const sizes = [];
        let area = 0;
        for (grid.page = 0; grid.page < (data.still ? 1 : grid.pages); ++grid.page) {
            waitForRendering(grid, 50);
            const tiles = all(grid, item => item.entry !== undefined)
                .map(cell => Qt.rect(cell.x + cell.children[1].x, cell.y + cell.children[1].y, cell.children[1].width, cell.children[1].height));
            tiles.forEach(tile => verify(tile.x > -1 && tile.y > -1 && tile.x + tile.width < 641 && tile.y + tile.height < 331, tile));
            const covered = tiles.reduce((sum, tile) => sum + (tile.width + grid.spacing) * (tile.height + grid.spacing), 0);
            fuzzyCompare(covered, tiles.length > 0 ? (640 + grid.spacing) * (330 + grid.spacing) : 0, 1);
            sizes.push(tiles.length);
        }
        compare(sizes, data.sizes);
    }

    // Of two and of three pictures on the ring, each can be seen.
    function test_carouselShowsAll_data() {
        return [{ tag: "one", count: 1 }, { tag: "two", count: 2 }, { tag: "two of many", count: 2, model: 7 }, { tag: "three", count: 3 }];
    }
    function test_carouselShowsAll(data) {
        const ring = make("Carousel { width: 600; height: 300; showTime: 60000; pathItemCount: " + data.count + " }");
        ring.model = Array.from({ length: data.model || data.count }, (nothing, i) => ({ name: "Card " + i }));
        for (let turn = 0; turn < 2; ++turn) {
            ring.currentIndex = turn % data.count;
            wait(1200);
            const cards = all(ring, item => item.depth !== undefined && item.entry !== undefined && item.opacity > 0.8);
            compare(cards.length, data.count);
            const middles = cards.map(card => boxOf(card, ring).x + boxOf(card, ring).width / 2).sort((a, b) => a - b);
            for (let i = 1; i < middles.length; ++i)
                verify(middles[i] - middles[i - 1] > 100, middles);
            verify(middles[0] > 0 && middles[middles.length - 1] < 600);
        }
    }

    function test_gridTurnsPages() {
        var grid = make("GridOrganizer { width: 640; height: 330; pageTime: 1000; columns: 1; model: [{ name: 'a' }, { name: 'b' }] }");
        compare(grid.pages, 2);
        tryCompare(grid, "page", 1);
        grid.model = [{ name: "a" }];
        compare(grid.page, 0);
    }

    readonly property var names: ["Grandmother's slow-cooked beef dumplings", "Kartoffelpuffer mit hausgemachtem Apfelmus",
                                  "Donaudampfschifffahrtskapitänsplatte", "كباب حلبي بالكرز مع الأرز والصنوبر المحمص",
                                  "特製海鮮丼と季節の野菜天ぷらの盛り合わせ定食", "Tea"]

    // Long names and prices: none is cut where two lines or smaller letters help, none leaves its place or stands on
    // another, and the price is no larger than its name.
    function test_names_data() {
        const rows = [];
        ["MenuItem1", "MenuItem2", "MenuItem3", "MenuItem4"].forEach(kind => names.forEach(name =>
            rows.push({ tag: kind + ", " + name, text: kind + " { price: '14,50 EUR'; name: \"" + name + "\" }", shown: [name] })));
        const model = JSON.stringify(names.map(name => ({ name: name, price: "14,50 EUR", details: "Two lines of details" })));
        [[600, 900], [380, 900], [1200, 800]].forEach(size => ["CartaMenu", "MenuSlideshow"].forEach(kind =>
            rows.push({ tag: kind + " " + size, shown: names, isList: true,
                        text: kind + " { width: " + size[0] + "; height: " + size[1] + "; model: " + model + " }" })));
        return rows;
    }
    function test_names(data) {
        const item = make(data.text);
        waitForRendering(item);
        wait(50);
        const shown = shownTexts(item);
        const find = text => shown.filter(item => item.text === text);
        data.shown.forEach(name => {
            compare(find(name).length, 1, name);
            verify(!find(name)[0].truncated, name);
        });
        const prices = find("14,50 EUR");
        compare(prices.length, data.shown.length);
        const sizes = data.shown.map(name => find(name)[0].font.pixelSize);
        verify(!data.isList || (Math.min.apply(null, sizes) === Math.max.apply(null, sizes)
                                && prices.every(price => price.font.pixelSize === prices[0].font.pixelSize)), sizes);
        verify(data.tag.startsWith("MenuItem3") || prices[0].font.pixelSize <= sizes[0] * 1.2, prices[0].font.pixelSize + " " + sizes);
        checkPlaces(item, shown.map(text => inkOf(text, item)).concat(leadersOf(item)), shown.map(text => text.text));
    }

    // The dots, which are none or a few.
    function leadersOf(item) {
        const leaders = all(item, child => child.dots !== undefined && isSeen(child, item));
        const drawn = leaders.filter(leader => leader.children[0].children.length > 1);
        drawn.forEach(leader => verify(leader.children[0].children.length > 4, "dots"));
        return drawn.map(leader => boxOf(leader, item));
    }

    function checkPlaces(item, boxes, labels) {
        boxes.forEach((box, i) => {
            verify(box.x >= -1 && box.x + box.width <= item.width + 1, labels[i] + " " + box);
            verify(box.y >= -1 && box.y + box.height <= item.height + 1, labels[i] + " " + box);
            boxes.slice(0, i).forEach((other, j) => {
                const across = Math.min(box.x + box.width, other.x + other.width) - Math.max(box.x, other.x);
                const down = Math.min(box.y + box.height, other.y + other.height) - Math.max(box.y, other.y);
                // Lines of letters may reach into each other by what no letter uses.
                verify(across < 1 || down < 0.3 * Math.min(box.height, other.height), labels[i] + " on " + labels[j]);
            });
        });
    }

    // The whole name of a shorter list stands in full size, in one line where there is room.
    function test_shortNamesAreNotShrunk() {
        const menu = make("CartaMenu { model: [{ name: 'Tea', price: '2' }, { name: 'A name that takes two of the lines', price: '14,50 EUR' }] }");
        waitForRendering(menu);
        compare(shownTexts(menu).filter(text => /^(Tea|A name)/.test(text.text)).map(text => [text.font.pixelSize, text.lineCount]),
                [[30, 1], [30, 2]]);
    }
}
