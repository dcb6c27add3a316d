.pragma library
// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// What menus and carousels show before they are given content of their own.

const folder = "qrc:///Nuvex/Components/icons/";

/// Entries with all members that menus know.
const menu = [
    { name: "Cappuccino", price: "3.60",
      details: "Double shot, velvet milk", image: folder + "sampleCoffee.png" },
    { name: "Garden salad", price: "7.90",
      details: "Leaves, tomato, cucumber, herb dressing", image: folder + "sampleSalad.png" },
    { name: "Pizza Margherita", price: "11.50",
      details: "Tomato, mozzarella, fresh basil", image: folder + "samplePizza.png" },
    { name: "Strawberry cake", price: "4.80",
      details: "Chocolate sponge, cream, fresh berries", image: folder + "sampleCake.png" },
    { name: "Fresh orange juice", price: "4.20",
      details: "Pressed while you wait", image: folder + "sampleJuice.png" }
];
