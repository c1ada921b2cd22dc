typedef NS_ENUM(NSInteger, Style) { A };
CF_ENUM (int,X) NS_OPTIONS( unsigned long , Y ) CF_OPTIONS(a,	Z_1	)
