let a = #selector(foo(_:))
let b = #available(iOS 13, *)
let c = #file
let d = f(#line, #function)
let e = #colorLiteral(red: 1, green: 0, blue: 0, alpha: 1)
let g = #imageLiteral(resourceName: "x")
let x = 1
