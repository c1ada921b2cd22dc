@available(iOS 13, macOS 10.15, *)
public class Player {
  @objc(playAt:) func play(at time: Int) {}
  @Published(initial: 3) var count: Int
  @available(*, deprecated, message: "no (more)")
  func stop() {}
}
let last = 1
