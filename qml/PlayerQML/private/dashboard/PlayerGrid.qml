// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Nuvex.GUI 1.0 as BGUI
import "limits.js" as Limits
import "players.js" as Players

/// The players as tiles, of which those exist that one sees. The arrow keys move, Enter chooses a project, Del deletes.
GridView {
    id: root

    property PlayerList players
    property ScreenshotWatch screenshots
    // Left free above the first row.
    property real headRoom: 0
    // Wanted width of a tile; they become a little wider so that a row is full.
    property real tileSize: 250 * dp

    readonly property real gap: (tileSize < 20 * BGUI.Theme.unit ? 1 : 1.5) * BGUI.Theme.unit
    // A tile is never higher than what one sees of them.
    readonly property real fittingWidth: Math.max(12 * BGUI.Theme.unit, (height - 12 * BGUI.Theme.unit - gap) * 16 / 9)
    readonly property int columns: Math.max(1, Math.floor(width / (tileSize + gap)),
                                            Math.ceil(width / (fittingWidth + gap)))
    readonly property real tileWidth: cellWidth - gap
    // Of what stands above and below a tile's picture.
    readonly property real linesHeight: (tileWidth < 20 * BGUI.Theme.unit ? 3 : (players.hasNamesakes ? 10 : 7.5))
                                        * BGUI.Theme.unit
    // While tiles rush by, nothing is fetched for them.
    readonly property bool isCalm: Math.abs(verticalVelocity) < 2 * height
    property int round: 0
    // Whether the current tile was gone to by keys, so that its frame shows where one is.
    property bool movedByKeys: false
    // What the place is remembered by while all tiles are exchanged.
    property real keptY: 0
    property string keptPlayer

    signal chosen(string player)
    signal deleteRequested(string player)

    function fetchPictures() {
        ++round;
    }

    function keepPlace() {
        keptY = contentY;
        keptPlayer = currentIndex >= 0 && currentIndex < count ? model.get(currentIndex).player : "";
    }

    function findPlace() {
        const hadFocus = activeFocus;
        let index = 0;
        for (let i = 0; i < count; ++i) {
            if (model.get(i).player === keptPlayer)
                index = i;
        }
        currentIndex = count > 0 ? index : -1;
        forceLayout();
        contentY = Math.max(originY, Math.min(keptY, originY + contentHeight - height));
        if (hadFocus)
            forceActiveFocus(Qt.TabFocusReason);
    }

    objectName: "playerGrid"
    cellWidth: Math.floor(width / columns)
    cellHeight: Math.round(tileWidth * 9 / 16 + linesHeight + 8 * Math.max(1, dp) + gap)
    model: players.rows
    header: Item { height: root.headRoom }
    clip: true
    cacheBuffer: 2 * cellHeight
    keyNavigationEnabled: true
    highlightMoveDuration: 0
    boundsBehavior: Flickable.StopAtBounds
    T.ScrollBar.vertical: BGUI.ScrollBar {}

    Keys.onPressed: {
        movedByKeys = true;
        event.accepted = false;
    }

    delegate: FocusScope {
        id: cell

        function take() {
            if (root.currentIndex !== index)
                root.movedByKeys = false;
            root.currentIndex = index;
            if (!tile.activeFocus)
                tile.forceActiveFocus(Qt.MouseFocusReason);
        }

        width: root.cellWidth
        height: root.cellHeight

        PlayerTile {
            id: tile
            width: root.tileWidth
            height: root.cellHeight - root.gap
            focus: true
            focusPolicy: isCurrent || activeFocus ? Qt.StrongFocus : Qt.ClickFocus
            isCurrent: cell.GridView.isCurrentItem
            isSeen: root.isCalm && cell.y + cell.height > root.contentY && cell.y < root.contentY + root.height
            name: model.label
            host: model.host
            isOld: root.screenshots.outdated[model.player] !== undefined
            heartbeat: model.heartbeat
            project: model.project
            now: root.players.now
            round: root.round
            screenshot: Players.screenshot(root.players.user, model.player)
            onActiveFocusChanged: {
                if (activeFocus && root.movedByKeys)
                    focusReason = Qt.TabFocusReason;
            }
            onVisualFocusChanged: {
                if (visualFocus)
                    root.positionViewAtIndex(index, GridView.Contain);
            }
            onClicked: {
                cell.take();
                root.chosen(model.player);
            }
            onDeleteRequested: {
                cell.take();
                root.deleteRequested(model.player);
            }
        }
    }

    Connections {
        target: root.players
        function onAboutToReset() { root.keepPlace(); }
        function onReset() { root.findPlace(); }
    }

    Timer {
        interval: Limits.picturePeriod
        running: root.players.active
        repeat: true
        onTriggered: root.fetchPictures()
    }
}
