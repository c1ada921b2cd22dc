enum E {
  A = requires { x; },
  B = requires(T t) { t.y(); } && true,
};
