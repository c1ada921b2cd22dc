enum [[nodiscard]] E {
  A [[deprecated]] = 1,
  B __attribute__((deprecated("old"))) = 2,
  C API_AVAILABLE(macos(10.15)) = 3,
  D NS_SWIFT_NAME(d)
} __attribute__((packed));
