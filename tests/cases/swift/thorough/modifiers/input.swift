final public class A {
  package nonisolated(unsafe) static var b = 1
  override open class func c(_ d: borrowing A) {}
  package(set) var e: sending A? = .init(f: 1)
}
public import B
distributed actor C {}
