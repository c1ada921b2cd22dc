#define API __attribute__((visibility("default")))
#define PACKED __attribute__((packed))
API int first(void);
extern API int counter;
struct PACKED header {
  int kind;
};
struct trailer {
  int sum;
} PACKED;
API int last(void) { return 0; }
