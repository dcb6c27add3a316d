.pragma library
// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Reads the JSON of Open-Meteo's forecast service: current weather and days, with the weather codes of the World
// Meteorological Organization (WMO code table 4677, as far as forecasts use it).
.import "json.js" as Json
.import "limits.js" as Limits

/// What `text` tells: a map with "current", a map with "temperature" (in degrees Celsius), "code" and "isDay", or null;
/// "offset", the place's offset from UTC in seconds; and "entries", the days as a list of maps with "date" (as
/// "2026-11-23"), "code", "high" and "low". null when it is no such answer.
function read(text) {
    const answer = Json.parsed(text);
    if (!answer || typeof answer !== "object" || answer.error === true)
        return null;
    const current = _current(answer);
    const days = _days(answer.daily || {});
    if (!current && days.length === 0)
        return null;
    return { current: current, offset: _number(answer.utc_offset_seconds) || 0, entries: days };
}

/// The days of `answer`, from the one that it is at the place at `now` (milliseconds since 1970).
function daysFrom(answer, now) {
    const today = new Date(now + answer.offset * 1000).toISOString().slice(0, 10);
    return answer.entries.filter(day => day.date >= today);
}

/// A temperature for the screen: rounded, in degrees Celsius or Fahrenheit, "–" when it is not known.
function temperature(celsius, isFahrenheit) {
    if (celsius === null || celsius === undefined)
        return "–";
    const value = Math.round(isFahrenheit ? celsius * 9 / 5 + 32 : celsius);
    return (value < 0 ? "−" + -value : value === 0 ? "0" : String(value)) + "°";
}

/// Name of the drawing below "icons" for a weather code; "" for an unknown one.
function icon(code, isDay) {
    const kind = _nameOf(code, _kinds);
    return kind === "" ? "" : "weather" + kind + (!isDay && (kind === "Clear" || kind === "Fair") ? "Night" : "");
}

/// What a weather code is called; "" for an unknown one.
function description(code) {
    return _nameOf(code, _descriptions);
}

const _kinds = [[0, 0, "Clear"], [1, 2, "Fair"], [3, 3, "Cloudy"], [45, 48, "Fog"], [51, 55, "Drizzle"],
                [56, 57, "Sleet"], [61, 65, "Rain"], [66, 67, "Sleet"], [71, 77, "Snow"], [80, 82, "Rain"],
                [85, 86, "Snow"], [95, 99, "Thunder"]];

const _descriptions = [[0, 0, qsTr("Clear sky")], [1, 1, qsTr("Mainly clear")], [2, 2, qsTr("Partly cloudy")],
                       [3, 3, qsTr("Overcast")], [45, 48, qsTr("Fog")], [51, 55, qsTr("Drizzle")],
                       [56, 57, qsTr("Freezing drizzle")], [61, 61, qsTr("Light rain")], [62, 64, qsTr("Rain")],
                       [65, 65, qsTr("Heavy rain")], [66, 67, qsTr("Freezing rain")], [71, 71, qsTr("Light snow")],
                       [72, 74, qsTr("Snow")], [75, 75, qsTr("Heavy snow")], [77, 77, qsTr("Snow grains")],
                       [80, 82, qsTr("Showers")], [85, 86, qsTr("Snow showers")], [95, 95, qsTr("Thunderstorm")],
                       [96, 99, qsTr("Thunderstorm with hail")]];

// The name of `code` in `table`, of lines with the first code, the last one and the name; "" where it is in none.
function _nameOf(code, table) {
    const found = table.find(line => code >= line[0] && code <= line[1]);
    return found ? found[2] : "";
}

function _current(answer) {
    const values = answer.current || {};
    const degrees = _number(values.temperature_2m);
    const code = _number(values.weather_code);
    return degrees === null || code === null ? null
                                             : { temperature: degrees, code: code, isDay: values.is_day !== 0 };
}

function _days(daily) {
    const dates = Array.isArray(daily.time) ? daily.time.slice(0, Limits.entries) : [];
    const at = (list, i) => Array.isArray(list) ? _number(list[i]) : null;
    return dates.map((date, i) => ({
        date: String(date),
        code: at(daily.weather_code, i),
        high: at(daily.temperature_2m_max, i),
        low: at(daily.temperature_2m_min, i)
    })).filter(day => /^\d{4}-\d{2}-\d{2}$/.test(day.date) && day.code !== null);
}

// A finite number that a temperature or code may be, else null.
function _number(value) {
    return typeof value === "number" && Math.abs(value) < 100000 ? value : null;
}
