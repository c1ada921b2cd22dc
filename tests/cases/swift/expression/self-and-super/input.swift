let a = self.b
let c = super.init(d)
let e = self < f
let g = nil < h
let i = self[0].j
let k = f(self < 1)
let x = 1
