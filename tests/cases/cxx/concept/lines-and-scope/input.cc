namespace N {
template <class T>
  requires (sizeof(T) > 1)
concept Deep = requires(T t) {
  { t.f([] { return "}"; }) } -> std::same_as<int>;
  requires C<T>;
};
int after;
}
