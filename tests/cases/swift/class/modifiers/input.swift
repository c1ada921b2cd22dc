public final class A {}
open class B {}
final class C {}
actor D {}
private(set) class E {}
