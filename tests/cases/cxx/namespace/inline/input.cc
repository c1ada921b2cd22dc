inline namespace v1 { int a; }
namespace a::b::inline c { int x; }
