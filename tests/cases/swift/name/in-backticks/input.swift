func `func`() {}
let `class` = 1
class `Type` {}
