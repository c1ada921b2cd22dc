let a = b(\.c.d.[0].e.[1]?)
let f = b(\.[0].self.g)
let h = b(\.i?.j!.k)
let l = 1
