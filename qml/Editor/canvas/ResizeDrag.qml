// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Native 1.1
import "geometry.js" as Geometry
import "limits.js" as Limits

/// Resizes one item by a handle, in whole pixels; the side across from the handle stays where it is, however the item
/// is turned. With Shift it keeps its shape, with Ctrl it is not snapped.
QtObject {
    id: root

    property Item frame
    property Item item
    // The handle: -1, 0 or 1 across and down.
    property int across
    property int down
    property point from
    // The item as it was: x, y, width, height, rotation, scale, transformOrigin.
    property var start: null

    readonly property Snapper snapper: Snapper {}

    function begin(point, resized, handleAcross, handleDown) {
        [item, across, down] = [resized, handleAcross, handleDown];
        from = item.parent.mapFromItem(frame, point.x, point.y);
        start = { x: item.x, y: item.y, width: item.width, height: item.height, rotation: item.rotation,
                  scale: item.scale, transformOrigin: item.transformOrigin };
        snapper.gather(item.parent, [item]);
    }

    function step(point, modifiers) {
        const now = item.parent.mapFromItem(frame, point.x, point.y);
        const way = Geometry.unturned(start, now.x - from.x, now.y - from.y);
        const wanted = snapped(start.width + across * way.x, start.height + down * way.y, modifiers);
        const size = shaped(wanted.width, wanted.height, modifiers);
        resize(Math.max(1, Math.round(size.width)), Math.max(1, Math.round(size.height)));
        frame.label = qsTr("%1 × %2").arg(item.width).arg(item.height);
    }

    // The edges of an item that is neither turned nor scaled come to rest at its neighbours'.
    function snapped(width, height, modifiers) {
        frame.guides.clear();
        if (start.rotation % 360 !== 0 || start.scale !== 1 || modifiers & Qt.ControlModifier)
            return Qt.size(width, height);
        const place = Geometry.placeKeeping(start, (1 - across) / 2, (1 - down) / 2, width, height);
        const reach = Limits.snapReach * dp / Geometry.unit(Geometry.axes(item.parent, frame));
        const edges = (across < 0 ? Qt.LeftEdge : across > 0 ? Qt.RightEdge : 0)
                    | (down < 0 ? Qt.TopEdge : down > 0 ? Qt.BottomEdge : 0);
        const rest = snapper.resize(Qt.rect(place.x, place.y, width, height), edges, reach);
        frame.guides.show(rest.guides, item.parent);
        return Qt.size(width + across * rest.x, height + down * rest.y);
    }

    function shaped(width, height, modifiers) {
        if (!(modifiers & Qt.ShiftModifier) || !(start.width > 0 && start.height > 0))
            return Qt.size(width, height);
        const byWidth = width / start.width;
        const byHeight = height / start.height;
        const factor = across === 0 ? byHeight : down === 0 ? byWidth : Math.max(byWidth, byHeight);
        return Qt.size(start.width * factor, start.height * factor);
    }

    function resize(width, height) {
        const place = Geometry.placeKeeping(start, (1 - across) / 2, (1 - down) / 2, width, height);
        if (width !== item.width)
            item.width = width;
        if (height !== item.height)
            item.height = height;
        if (place.x !== start.x)
            item.x = Math.round(place.x);
        if (place.y !== start.y)
            item.y = Math.round(place.y);
    }

    function end() {
        leave();
        const names = ["x", "y", "width", "height"].filter(name => item[name] !== start[name]);
        const values = {};
        names.forEach(name => { values[name] = item[name]; });
        frame.desk.changes.place([{ item: item, values: values }]);
    }

    // A size that the item worked out for itself is not had back by numbers.
    function cancel() {
        leave();
        frame.desk.showAgain();
    }

    function leave() {
        frame.guides.clear();
        frame.label = "";
    }
}
