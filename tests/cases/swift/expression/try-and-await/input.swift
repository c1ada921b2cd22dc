let a = try b()
let c = try? d()
let e = try! f()
let g = try await h()
let i = try !j
let x = 1
