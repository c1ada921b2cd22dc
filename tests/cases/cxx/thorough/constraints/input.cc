template <class T> requires (!is_array<T>) && requires(T t) { t.f(); }
void f(T);
template <class T> requires A<T> || B<T>
struct S {
  void g() requires C<T>;
};
