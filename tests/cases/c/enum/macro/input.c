typedef NS_ENUM(int, Style) { A, B };
NS_OPTIONS(unsigned long, Flags) { C };
