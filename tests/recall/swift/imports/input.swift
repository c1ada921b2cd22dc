public import Foundation
@testable import Core
import struct Core.Point
internal import class Core.Shape
@preconcurrency import Dispatch
struct First {}
let last = 1
