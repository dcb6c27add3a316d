.pragma library
// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Parts of documents: the components that one can add, and pieces of source.

/// Import lines that source from elsewhere may need.
const imports = ["import QtQuick 2.15", "import Nuvex.Editor 1.0", "import Nuvex.Components 1.0",
    "import Nuvex.GUI 1.0 as BGUI", "import QtQuick.Controls 1.4", "import Nuvex.Native 1.0",
    "import QtQuick.Layouts 1.15", "import QtQml 2.2"];

/// As few of `lines` as are enough: `isEnough` tells of a list of lines. None where even all are not.
function needed(lines, isEnough) {
    if (isEnough([]) || !isEnough(lines))
        return [];
    return lines.reduce((kept, line) => {
        const fewer = kept.filter(other => other !== line);
        return isEnough(fewer) ? fewer : kept;
    }, lines);
}

/// The file of a component of the library.
function fileOf(type) {
    return ":/Nuvex/Components/" + type + ".qml";
}

/// The objects that `code` writes one after the other, each as its source; none when it is anything else.
function pieces(code, parse) {
    const lead = "Item {\n";
    const records = parse(lead + code + "\n}");
    const inside = records.slice(0, -1).filter((record, i, all) => !all.some(other => _holds(other, record)));
    const found = inside.map(record => code.slice(record.pfirst - lead.length, record.plast - lead.length));
    return found.every(piece => parse(piece).length > 0) ? found : [];
}

function _holds(outer, inner) {
    return outer.pfirst < inner.pfirst && inner.plast < outer.plast;
}

/// Whether items are put into items of that type.
function takesItems(typename) {
    return _leaves.indexOf(typename) < 0;
}

const _leaves = ["BasicImage", "KImage", "LiveImage", "BasicText", "GlowText", "ShadedText", "LiveText", "BasicVideo",
    "ChromaVideo", "MenuItem1", "MenuItem2", "MenuItem3", "MenuItem4", "DigitalClock", "AnalogClock", "Weather",
    "WeatherForecast", "CartaMenu", "Carousel", "GridOrganizer", "Fireworks", "MenuSlideshow", "Particles", "Twitter",
    "Flickr", "Rss", "BasicCalendar", "BasicButton", "BasicWebView", "BasicEdit", "Text", "TextEdit", "TextInput",
    "Image", "AnimatedImage", "BorderImage", "Video", "VideoOutput", "Canvas", "Loader", "Repeater", "ListView",
    "GridView", "PathView", "TableView", "Button", "TransparentVideo"];

/// Whether items of that type place what is in them.
function placesItems(typename) {
    return /(?:Row|Column|Grid|Flow|Layout|Slideshow|Schedule)$/.test(typename);
}

/// The kind of file at `url`, "picture" or "video", by its ending; null for others. `filters` are those of files.js.
function mediaOf(url, filters) {
    const ending = "*" + (/\.[^.\/]*$/.exec(String(url).toLowerCase()) || [""])[0];
    const kind = ["picture", "video"].find(kind => filters[kind].indexOf(ending) >= 0);
    return kind === undefined ? null : kind;
}

/// The property by which items of that type show a file of `kind`; "" for those that show none.
function mediaProperty(typename, kind) {
    if (_shows[kind].indexOf(typename) >= 0)
        return "source";
    return kind === "picture" && /^MenuItem\d$/.test(typename) ? "image" : "";
}

const _shows = {
    picture: ["BasicImage", "KImage", "LiveImage", "Image", "AnimatedImage", "BorderImage"],
    video: ["BasicVideo", "ChromaVideo", "Video", "TransparentVideo"]
};
