class LIB_API First {
  int a;
};
class LIB_API LIB_ALIGNED(16) Second final : public First {
 public:
  void Run() LIB_NOEXCEPT;
};
struct LIB_DEPRECATED("use Second") Third {
  int b LIB_GUARDED_BY(lock);
};
enum class LIB_API Fourth { kOne };
int last;
