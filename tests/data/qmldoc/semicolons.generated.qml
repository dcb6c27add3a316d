import QtQuick 2.15; import QtQml 2.15
Item { x: 1; y: 2 ; width:3;height:4
  color: "red";
  property int a;property int b: 1;property string c
  ;signal s;signal t(int x)
  onS: { a = 1; }
  Text{text:"a"
property int element: 0
    function evaluate(str) {      
    eval(str);                    
    }                             

}Text{text:"b";
property int element: 1
    function evaluate(str) {      
    eval(str);                    
    }                             

}
  Row { spacing: 1; Item { x: 1 
property int element: 2
    function evaluate(str) {      
    eval(str);                    
    }                             

} Item { x: 2; 
property int element: 3
    function evaluate(str) {      
    eval(str);                    
    }                             

} 
property int element: 4
    function evaluate(str) {      
    eval(str);                    
    }                             

}
  visible: true; 
property int element: 5
    function evaluate(str) {      
    eval(str);                    
    }                             

}
