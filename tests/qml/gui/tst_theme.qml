// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0
import "qrc:/Nuvex/GUI/private/contrast.js" as Contrast

Item {
    width: 400
    height: 300

    GuiTestCase {
        name: "Theme"

        function test_textIsReadable_data() {
            const grounds = ["ground", "surface", "sunken", "tint"];
            const rows = [];
            for (const ink of ["ink", "strongInk", "link", "accent", "danger", "success", "warning"])
                grounds.forEach(ground => rows.push({ tag: ink + " on " + ground, ink: Theme[ink], on: Theme[ground] }));
            for (const ground of ["ground", "surface", "tint"])
                rows.push({ tag: "mutedInk on " + ground, ink: Theme.mutedInk, on: Theme[ground] });
            rows.push({ tag: "bar", ink: Theme.barInk, on: Theme.bar });
            return rows;
        }

        function test_textIsReadable(row) {
            const ratio = Contrast.ratio(row.ink, row.on);
            verify(ratio >= 4.5, ratio);
        }

        function test_filledControlsAreReadable_data() {
            return ["default", "primary", "success", "info", "warning", "danger"].map(type => ({ tag: type }));
        }

        function test_filledControlsAreReadable(row) {
            const kind = Theme.kinds[row.tag];
            for (const state of ["fill", "hover", "pressed"])
                verify(Contrast.ratio(kind.ink, kind[state]) >= 4.5, state + Contrast.ratio(kind.ink, kind[state]));
        }

        function test_contrastRatio() {
            compare(Contrast.ratio(Qt.rgba(0, 0, 0, 1), Qt.rgba(1, 1, 1, 1)), 21);
            fuzzyCompare(Contrast.ratio(Qt.rgba(1, 1, 1, 1), Qt.lighter("#767676", 1)), 4.54, 0.01);
        }

        function test_sizes_data() {
            return [
                { tag: "xsmall", height: 14, font: 12, radius: 3 },
                { tag: "small", height: 22, font: 12, radius: 3 },
                { tag: "base", height: 26, font: 14, radius: 4 },
                { tag: "large", height: 38, font: 18, radius: 6 },
                { tag: "xlarge", height: 41, font: 21, radius: 8 }
            ];
        }

        function test_sizes(row) {
            compare(Theme.controlHeight(row.tag), row.height);
            compare(Theme.fontSize(row.tag), row.font);
            compare(Theme.radius(row.tag), row.radius);
            for (const type of ["Button", "CheckBox", "Radio", "Slider", "ComboBox"])
                compare(make(type + " { size: '" + row.tag + "' }").implicitHeight, row.height, type);
        }

        function test_glyphs_data() {
            return [
                { tag: "first", name: "fa-glass", glyph: "\uf000" },
                { tag: "last", name: "fa-plus-square-o", glyph: "\uf196" },
                { tag: "unknown", name: "no-such-icon", glyph: "\uf128" },
                { tag: "none", name: "", glyph: "" }
            ];
        }

        function test_glyphs(row) {
            const icon = make("FontAwesomeIcon { faIcon: '" + row.name + "' }");
            compare(icon.text, row.glyph);
            compare(icon.font.family, "FontAwesome");
        }
    }
}
