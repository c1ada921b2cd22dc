a < b > c;
x = a < b;
foo<(1 > 2)> d;
