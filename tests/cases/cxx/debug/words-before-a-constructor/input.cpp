constexpr A();
inline B();
virtual C();
explicit D();
consteval E();
constinit F();
inline constexpr explicit G() {}
constexpr bool operator<(A);
inline bool operator>(A);
virtual bool operator==(A);
explicit operator bool();
consteval bool operator!(A);
constinit inline bool operator!=(A);
