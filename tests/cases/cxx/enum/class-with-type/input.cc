enum class E : int { A = 1, B };
enum struct F : std::uint8_t { C };
enum : unsigned char { D };
