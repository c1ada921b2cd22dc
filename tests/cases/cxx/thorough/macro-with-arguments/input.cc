#define DECLARE(type, name) type get_##name() const;
class A {
  DECLARE(int, size)
};
