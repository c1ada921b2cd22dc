@class Foo;
@class Bar, Baz;
@protocol A, B;
@protocol C;
@interface D;
- (void)run;
int x;
