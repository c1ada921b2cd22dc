template <class T> concept A = B<T> && C<T>;
template <class T> concept D = A<T> || requires { typename T::x; };
template <class T> concept E = requires(T a) { { a + a } -> std::same_as<T>; };
template <class T, class U> concept F = std::is_same_v<T, U>;
template <class T> concept G = !A<T> && (sizeof(T) > 4 || E<T>);
template <class T> concept H = requires(T a, T b) { a + b; } && true;
