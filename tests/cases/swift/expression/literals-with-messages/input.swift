let a = 1, b = -0x1F, c = 0b10, d = 0o17, e = 2.5e-3
let f = "x"
let g = #"x"#
let h = true, i = false, j = nil
let k = /x/
let l = [1, 2,], m = [:], n = ["x": 1,]
let o = [#filePath, #fileID, #file, #line, #column, #function, #dsohandle]
let p = 1
