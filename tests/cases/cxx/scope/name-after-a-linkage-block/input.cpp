extern "C" {
int a;
} b;
namespace n {
extern "C" { } c;
}
