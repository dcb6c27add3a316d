// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
pragma Singleton
import QtQuick 2.15
import "private/contrast.js" as Contrast

/// The theme map "bs" and the density "dp" as the colours, lengths and fonts that widgets and pages use. All lengths
/// are in pixels, already scaled. `size` is one of "xsmall", "small", "base", "large", "xlarge"; the last two are
/// for touch.
QtObject {
    id: root

    readonly property string fontFamily: "Open Sans"
    readonly property string codeFamily: "monospace"
    readonly property string iconFamily: "FontAwesome"

    readonly property real unit: 8 * dp
    readonly property real touchTarget: 44 * dp

    readonly property color ground: "#f4f6f9"
    readonly property color surface: bs["body-bg"]
    readonly property color sunken: bs["gray-lighter"]
    readonly property color line: bs["thumbnail-border"]
    readonly property color border: bs["input-border"]
    readonly property color ink: bs["text-color"]
    readonly property color strongInk: bs["gray-darker"]
    readonly property color mutedInk: bs["gray-light"]
    readonly property color bar: bs["gray-darker"]
    readonly property color barInk: bs["body-bg"]
    readonly property color accent: Contrast.deepened(bs["component-active-bg"], sunken)
    readonly property color tint: Qt.tint(surface, Qt.rgba(accent.r, accent.g, accent.b, 0.1))
    readonly property color link: bs["link-hover-color"]
    readonly property color focus: bs["link-hover-color"]
    readonly property color success: Contrast.deepened(bs["brand-success"], sunken)
    readonly property color warning: Contrast.deepened(bs["brand-warning"], sunken)
    readonly property color danger: Contrast.deepened(bs["brand-danger"], sunken)

    readonly property int quick: 120
    readonly property int calm: 220

    // Colours of a filled control by type, each with "fill", "ink", "hover", "pressed" and "border".
    readonly property var kinds: ({
        "default": kind(bs["btn-default-bg"], bs["btn-default-color"], bs["btn-default-border"]),
        "primary": kind(bs["btn-primary-bg"], bs["btn-primary-color"]),
        "success": kind(bs["btn-success-bg"], bs["btn-success-color"]),
        "info": kind(bs["btn-info-bg"], bs["btn-info-color"]),
        "warning": kind(bs["btn-warning-bg"], bs["btn-warning-color"]),
        "danger": kind(bs["btn-danger-bg"], bs["btn-danger-color"]),
        "link": { "fill": "transparent", "ink": link, "hover": "transparent", "pressed": "transparent",
                  "border": "transparent" }
    })

    function kind(fill, ink, border) {
        const pair = Contrast.pair(fill, ink, strongInk, sunken);
        return { "fill": pair.fill, "ink": pair.ink, "hover": Contrast.deeper(pair.fill, 0.05),
                 "pressed": Contrast.deeper(pair.fill, 0.11), "border": border || Contrast.deeper(pair.fill, 0.05) };
    }

    // Also takes "h1" to "h6".
    function fontSize(size) {
        return Math.round(bs["font-size-" + size] * dp);
    }

    function controlHeight(size) {
        return (bs["font-size-" + size] + 2 * bs["padding-" + size + "-vertical"]) * dp;
    }

    function padding(size) {
        return bs["padding-" + size + "-horizontal"] * dp;
    }

    function radius(size) {
        return bs["border-radius-" + size] * dp;
    }

    // How far the hit area reaches over the edge of a control of that height, so that a finger finds it.
    function reach(size, height) {
        return size === "large" || size === "xlarge" ? Math.max(0, (touchTarget - height) / 2) : 0;
    }

    // The glyph of an icon name; unknown names show a question mark, the empty name nothing.
    function glyph(name) {
        if (name === "")
            return "";
        return faIcons[name] !== undefined ? faIcons[name] : faIcons["fa-question"];
    }
}
