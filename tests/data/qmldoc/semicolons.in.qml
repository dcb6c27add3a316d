import QtQuick 2.15; import QtQml 2.15
Item { x: 1; y: 2 ; width:3;height:4
  color: "red";
  property int a;property int b: 1;property string c
  ;signal s;signal t(int x)
  onS: { a = 1; }
  Text{text:"a"}Text{text:"b";}
  Row { spacing: 1; Item { x: 1 } Item { x: 2; } }
  visible: true; }
