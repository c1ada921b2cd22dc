namespace a::inline b {
int f();
}
int g();
