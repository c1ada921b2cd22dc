typedef NS_ENUM(NSInteger, Style) { StyleA, StyleB = 1 << 2 };
typedef NS_OPTIONS (unsigned long , Mask ) {
  MaskNone = 0,
};
CF_ENUM(int, Plain) { PlainA };
typedef CF_OPTIONS(uint32_t, Bits) { BitsA } NamedBits;
