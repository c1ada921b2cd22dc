__attribute__((visibility("default"))) int f();
