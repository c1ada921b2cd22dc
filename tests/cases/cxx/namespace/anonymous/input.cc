namespace {
int a;
}
namespace N { namespace { int b; } }
