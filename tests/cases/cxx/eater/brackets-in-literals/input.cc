void f() { s = "}"; c = '}'; /* } */ // }
}
int a[sizeof("]")];
static_assert(x == ')', ")");
int b;
