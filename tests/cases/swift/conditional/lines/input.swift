#if DEBUG && (
let a = 1
#elseif { }
let b = 2
#elsewhere
let c = 3
#endif // )
let d = 4
