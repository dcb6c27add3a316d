import QtQuick 2.15

Image {
    source: "fan.png"
    transform: Rotation {
        origin.x: 40; origin.y: 40
        angle: 15
        Behavior on angle {
            NumberAnimation { duration: 90 }
        }
    }
    gradient: Gradient {
        GradientStop { position: 0; color: "white" }
        GradientStop { position: 1; color: "black" }
    }
    NumberAnimation on opacity {
        from: 0
        to: 1
        loops: Animation.Infinite
    }
    layer.effect: Glow { source: Item { opacity: .5; Timer { interval: 20 } } }
}
