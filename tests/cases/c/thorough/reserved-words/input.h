struct A {
  u64 tag __packed __aligned(4);
  lock_t lock ____cacheline_aligned;
  int (*get)(struct k *k, unsigned int __user *b);
  __u32 b;
  int (*final)(int *r);
  u8 virtual : 1;
} __packed __aligned(4);
struct B { int a; } __packed var;
typedef struct { int a; } __name_t;
typedef struct D { int a; } __packed D;
typedef MADE_TYPE(A, B) made;
