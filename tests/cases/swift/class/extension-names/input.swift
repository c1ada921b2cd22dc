extension A.B<C>.D {}
extension E
  .F {}
extension G<H> {}
let x = 1
