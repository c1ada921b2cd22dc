inline namespace v1 {
void f();
}
