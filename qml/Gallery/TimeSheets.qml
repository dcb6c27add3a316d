// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Components 1.0

/// Clocks, calendar, weather and feeds. The feeds show the answers that stand in for theirs in the editor: a number of
/// their own is what tells them.
SheetColumns {
    id: root

    narrowest: 40
    most: 4

    Specimen {
        title: "DigitalClock"
        about: qsTr("The time, and the date if wished")
        DigitalClock { width: 360; height: 150; format: "hh:mm:ss"; pixelSize: 72 }
    }

    Specimen {
        title: "AnalogClock"
        about: qsTr("The time on a dial")
        AnalogClock { width: 400; height: 400 }
    }

    Specimen {
        title: "BasicCalendar"
        about: qsTr("The month")
        BasicCalendar { width: 480; height: 440; backColor: "#17212b" }
    }

    Specimen {
        title: "Weather"
        about: qsTr("The weather now")
        Weather { width: 420; height: 200; element: 0; service: "" }
    }

    Specimen {
        title: "WeatherForecast"
        about: qsTr("The weather of the next days")
        WeatherForecast { width: 640; height: 260; element: 0; service: "" }
    }

    Specimen {
        title: "Rss"
        about: qsTr("The entries of a feed, page by page")
        Rss { width: 640; height: 360; element: 0; currentFeed: "" }
    }

    Specimen {
        title: "Twitter"
        about: qsTr("What people write about a phrase")
        Twitter { width: 640; height: 360; element: 0; service: "" }
    }
}
