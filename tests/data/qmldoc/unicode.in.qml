// 😀 before
import QtQuick 2.15

Item {
    property string smile: "😀"
    property string größe: "ß"
    Text { text: "𝄞 clef" /* 𝄢 */; x: 5 }
    Text { text: "日本語" + '👩‍👩‍👧'; x: 6 }
    Text { text: `🎈${x}🎈` }
    width: 7 // 😀
}
