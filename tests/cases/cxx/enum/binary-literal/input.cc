enum E { A = 0b101, B = 0x1p3 };
