#!/usr/bin/swift
import struct A.B
print("a")
if let b = c,
  let d = e {
  let f = 1
} else if g { h() }
let i = if j { 1 } else { 2 }
guard let k = l else { fatalError() }
#Preview("m {") { let n = 1 }
func o() {}
