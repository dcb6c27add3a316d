import QtQuick 2.15

@Designer { locked: true }
Item {
    @Note { text: "why"; Item { x: 9 } } width: 100
    @Note { text: "declared" } property int depth: 2
    @Note { text: "child" }
    Text { text: "a" }
}
