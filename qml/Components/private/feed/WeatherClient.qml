// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "addresses.js" as Addresses
import "forecast.js" as Forecast
import "sample.js" as Sample
import "../presence.js" as Presence

/// The weather of a place for its parent, a Weather or WeatherForecast. Both ask for the same, so that one answer
/// serves both.
FeedClient {
    id: root

    property Item target: parent
    property real lat
    property real lon
    property string service
    property bool isEdited: false
    /// What there is to show: a map as forecast.js reads it; null while there is nothing.
    readonly property var weather: answer || (isEdited ? Sample.forecast(Date.now()) : null)

    address: Addresses.filled(service, { lat: lat.toFixed(4), lon: lon.toFixed(4) })
    active: target.visible && Presence.presenceOf(target) === Presence.shown
    period: 900000
    read: Forecast.read
    Component.onCompleted: isEdited = Presence.isEdited(target)
}
