// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// What the demos' boards work out by themselves: departures, visitors, and lines of a price list with a mark.
ComponentCase {
    id: test
    name: "Boards"

    function makeBoard(document, properties) {
        const component = Qt.createComponent(Qt.resolvedUrl("../../../demos/" + document));
        verify(component.status === Component.Ready, component.errorString());
        return createTemporaryObject(component, test, properties);
    }

    // All items below `item` that `isWanted` accepts.
    function below(item, isWanted) {
        return Array.prototype.reduce.call(item.children, (found, child) =>
            found.concat(isWanted(child) ? [child] : [], below(child, isWanted)), []);
    }

    function isText(item) {
        return item.contentWidth !== undefined && item.text !== "";
    }

    // Where the letters of `text` begin in `item`, in pixels.
    function start(text, item) {
        const room = text.horizontalAlignment === Text.AlignLeft ? 0 : text.width - text.contentWidth;
        return text.mapToItem(item, text.horizontalAlignment === Text.AlignRight ? room : room / 2, 0).x;
    }

    function test_departures_data() {
        const night = { every: 60, at: 30, first: 450, last: 1170 };
        return [
            { tag: "soon", time: "12:00", line: { every: 4, at: 1 }, next: "1 min", then: "5 min" },
            { tag: "now", time: "12:01", line: { every: 4, at: 1 }, next: "now", then: "4 min" },
            { tag: "over the hour", time: "12:55", line: { every: 20, at: 13 }, next: "18 min", then: "38 min" },
            { tag: "long before the first", time: "05:00", line: night, next: "07:30", then: undefined },
            { tag: "before the first", time: "06:40", line: night, next: "50 min", then: "110 min" },
            { tag: "the last", time: "19:30", line: night, next: "now", then: undefined },
            { tag: "after the last", time: "19:31", line: night, next: "07:30", then: undefined }
        ];
    }

    function test_departures(row) {
        const line = Object.assign({ line: "1", to: "Castle", platform: "3", color: "red", ink: "white" }, row.line);
        const board = makeBoard("Transport Board/Timetable.qml", { departures: [line] });
        board.now = new Date("2026-03-02T" + row.time + ":30");
        const texts = below(board, isText).map(item => item.text);
        const castle = texts.indexOf("Castle");
        compare([texts[castle + 2], texts[castle + 3]], [row.next, row.then]);
    }

    // No text of a timetable leaves its column, whatever the time.
    function test_timetablesFit() {
        const board = makeBoard("Transport Board/main.qml");
        const tables = below(board, item => item.departures !== undefined);
        compare(tables.length, 3);
        for (const table of tables) {
            for (const time of ["00:05", "06:29", "12:31", "22:59"]) {
                table.now = new Date("2026-03-02T" + time + ":00");
                const texts = below(table, isText);
                verify(texts.length > 30);
                texts.forEach((text, i) => {
                    const next = texts[i + 1];
                    const isLast = !next || start(next, table) < start(text, table);
                    verify(start(text, table) + text.contentWidth + 8 < (isLast ? table.width : start(next, table)),
                           text.text + " in " + table.title);
                });
            }
        }
    }

    // Those past make room, the next one is marked, and three are shown.
    function test_visitors() {
        const times = ["", "24:00", "24:10", "24:20", "24:30"];
        const board = makeBoard("Corporate Lobby/Visitors.qml",
                                { guests: times.map(time => ({ time: time, name: "Guest " + time, place: "Desk" })) });
        const rows = below(board, item => item.isNext !== undefined);
        tryVerify(() => !rows[0].visible && rows[1].y === 0);
        compare(rows.map(row => row.isNext), [false, true, false, false, false]);
        tryVerify(() => isNear(rows[1].color, "#14233a"));
        compare(rows.map(row => row.visible && row.y + row.height <= row.parent.parent.height),
                [false, true, true, true, false]);
        tryVerify(() => below(board, item => item.text === "Nobody else today")[0].opacity === 0);
        board.guests = [];
        tryVerify(() => below(board, item => item.text === "Nobody else today")[0].opacity === 1);
    }

    // A mark stands between name and price, on the last line of the name.
    function test_marks() {
        const menu = make("CartaMenu { width: 420; height: 400; model: ["
                          + "{ name: 'Soup', price: '4,00 €', icon: 'fa-leaf' },"
                          + "{ name: 'Grandmother\\'s slowly braised red cabbage', price: '14,50 €', icon: 'fa-leaf' },"
                          + "{ name: 'Bread', price: '2,00 €' }] }");
        const marks = below(menu, item => isText(item) && item.text === "\uf06c");
        compare(marks.length, 2);
        for (const mark of marks) {
            const line = mark.parent;
            const [name, price] = ["name", "price"].map(key =>
                below(line, item => isText(item) && item.text === line.entry[key])[0]);
            verify(mark.x > name.lastLength && mark.x + mark.width < price.mapToItem(line, 0, 0).x, name.text);
            verify(mark.y >= name.lastTop && mark.y + mark.height <= name.y + name.height, name.text);
            verify(!name.truncated, name.text);
        }
    }
}
