L"x" u8"y" R"(z)"
