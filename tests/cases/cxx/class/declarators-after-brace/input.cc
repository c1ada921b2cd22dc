struct S { int a; } one, *two, three[3] = {}, &four = one;
