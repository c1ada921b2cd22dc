/* a /* class B { */ c */ let x = 1 /**/ // }
let y = 2 // class C {
