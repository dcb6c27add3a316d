// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Components 1.0
import "samples.js" as Samples

/// What takes turns: slides, schedules, carousels.
SheetColumns {
    id: root

    narrowest: 40
    most: 4

    Specimen {
        title: "Slideshow"
        about: qsTr("Slides that take turns")

        Slideshow {
            width: 960
            height: 540
            transType: "slideLeft"

            SampleSlide { text: qsTr("First slide"); picture: "tomatoes"; tagColor: "#c23b22" }
            SampleSlide { text: qsTr("Second slide"); picture: "vases"; tagColor: "#4f5d49" }
            SampleSlide { text: qsTr("Third slide"); picture: "court"; tagColor: "#c98b62" }
        }
    }

    Specimen {
        title: "Slide"
        about: qsTr("One slide of a show")

        Slideshow {
            width: 960
            height: 540

            SampleSlide { text: qsTr("A slide"); picture: "morning"; tagColor: "#b1532f" }
        }
    }

    Specimen {
        title: "Schedule"
        about: qsTr("Slides by the time of day")

        Schedule {
            width: 960
            height: 540
            schedules: [{ name: "Day", slide: 0, begin: "06:00", end: "18:00" },
                        { name: "Night", slide: 1, begin: "18:00", end: "06:00" }]

            SampleSlide { text: qsTr("From six to eighteen"); picture: "pasta"; tagColor: "#e3ab62" }
            SampleSlide { text: qsTr("From eighteen to six"); picture: "wine"; tagColor: "#5b1020" }
        }
    }

    Specimen {
        title: "Carousel"
        about: qsTr("Pictures on a ring")
        Carousel { width: 960; height: 480; model: Samples.dishes() }
    }

    Specimen {
        title: "GridOrganizer"
        about: qsTr("Pictures in a grid")
        GridOrganizer { width: 840; height: 480; columns: 3; spacing: 12; model: Samples.dishes() }
    }
}
