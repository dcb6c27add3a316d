Rectangle { width: 100 
property int element: 0
    function evaluate(str) {      
    eval(str);                    
    }                             

}