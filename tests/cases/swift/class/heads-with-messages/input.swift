public class A: B, C {}
private final class D: E {}
internal struct F: G, H {}
fileprivate protocol I: J, K {}
public extension L: M, N {}
open enum O: P, Q { case r }
actor S: T, U {}
