.pragma library
// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// What the sheets show: pictures and films of the demos.

const folder = "qrc:///Nuvex/Gallery/samples/";

/// Address of the picture `name`.
function picture(name) {
    return folder + name + ".jpg";
}

/// Address of the film `name`.
function film(name) {
    return folder + name + ".mp4";
}

/// Entries as menus, rings and grids take them.
function dishes() {
    return [
        { name: "Bruschetta", price: "6,50 €", details: "Tomato, garlic, basil",
          icon: "fa-leaf", image: picture("tomatoes") },
        { name: "Olive miste", price: "5,00 €", details: "With orange and fennel",
          icon: "fa-leaf", image: picture("olives") },
        { name: "Tagliatelle", price: "12,50 €", details: "Cherry tomatoes, basil",
          icon: "fa-leaf", image: picture("pasta") },
        { name: "Rosso del faro", price: "4,80 €", details: "From the hill behind",
          image: picture("wine") },
        { name: "Gelato", price: "6,00 €", details: "Vanilla, pistachio, strawberry",
          icon: "fa-leaf", image: picture("gelato") }
    ];
}
