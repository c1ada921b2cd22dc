namespace a::b {
int x;
}
