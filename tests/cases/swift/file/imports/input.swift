import Foundation
import A.B
@testable import C
import A.B.C; import D
let x = 1
