/* int a; */ int b; // int c; \
int d;
int /* e */ f /* g */ (void) /* { */;
int h; //
