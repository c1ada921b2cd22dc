namespace [[deprecated]] N { int a; }
namespace M __attribute__((visibility("default"))) { int b; }
