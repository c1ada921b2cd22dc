import Foundation
print("start")
let first = 1
#if os(macOS)
func onMac() {}
#else
func elsewhere() {}
#endif
if first > 0 {
  print("}")
}
struct Late {
  #if DEBUG
  var trace = false
  #endif
  var size = 0
}
let last = 1
