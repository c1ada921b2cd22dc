typedef union U { int i; float f; } U_t;
