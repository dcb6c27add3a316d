.pragma library
// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// The components that the palette offers, in groups. A name is the component's type, which is also its picture's.

const groups = [
    { title: qsTr("Texts"), parts: [
        { type: "BasicText", label: qsTr("Text") },
        { type: "LiveText", label: qsTr("Live text") },
        { type: "ShadedText", label: qsTr("Text with shadow") },
        { type: "GlowText", label: qsTr("Glowing text") }
    ] },
    { title: qsTr("Pictures and videos"), parts: [
        { type: "BasicImage", label: qsTr("Picture") },
        { type: "LiveImage", label: qsTr("Live picture") },
        { type: "KImage", label: qsTr("Zooming picture") },
        { type: "BasicVideo", label: qsTr("Video") },
        { type: "ChromaVideo", label: qsTr("Keyed video") },
        { type: "BasicRectangle", label: qsTr("Rectangle") }
    ] },
    { title: qsTr("Shows"), parts: [
        { type: "Slideshow", label: qsTr("Slideshow") },
        { type: "Slide", label: qsTr("Slide") },
        { type: "Schedule", label: qsTr("Schedule") },
        { type: "Carousel", label: qsTr("Carousel") },
        { type: "GridOrganizer", label: qsTr("Picture grid") },
        { type: "AnimatedItem", label: qsTr("Moving group") }
    ] },
    { title: qsTr("Menus"), parts: [
        { type: "CartaMenu", label: qsTr("Price list") },
        { type: "MenuItem1", label: qsTr("Dish 1") },
        { type: "MenuItem2", label: qsTr("Dish 2") },
        { type: "MenuItem3", label: qsTr("Dish 3") },
        { type: "MenuItem4", label: qsTr("Dish 4") },
        { type: "MenuSlideshow", label: qsTr("Menu show") }
    ] },
    { title: qsTr("Time and news"), parts: [
        { type: "DigitalClock", label: qsTr("Digital clock") },
        { type: "AnalogClock", label: qsTr("Clock") },
        { type: "BasicCalendar", label: qsTr("Calendar") },
        { type: "Weather", label: qsTr("Weather") },
        { type: "WeatherForecast", label: qsTr("Forecast") },
        { type: "Rss", label: qsTr("News") },
        { type: "Twitter", label: qsTr("Posts") },
        { type: "Flickr", label: qsTr("Photos") }
    ] },
    { title: qsTr("Layouts"), parts: [
        { type: "BasicRow", label: qsTr("Row") },
        { type: "BasicColumn", label: qsTr("Column") },
        { type: "BasicGrid", label: qsTr("Grid") }
    ] },
    { title: qsTr("Effects and buttons"), parts: [
        { type: "Fireworks", label: qsTr("Fireworks") },
        { type: "Particles", label: qsTr("Particles") },
        { type: "BasicButton", label: qsTr("Button") }
    ] }
];

/// The groups with the parts whose label or type holds `text`, in any case; without those that have none.
function matching(text) {
    const wanted = text.trim().toLowerCase();
    const fits = part => (part.label + " " + part.type).toLowerCase().indexOf(wanted) >= 0;
    return groups.map(group => ({ title: group.title, parts: group.parts.filter(fits) }))
                 .filter(group => group.parts.length > 0);
}
