struct Größe {
  let höhe: Int
  func 面積() -> Int { 0 }
}
enum Farbe {
  case grün, weiß
}
let last = 1
