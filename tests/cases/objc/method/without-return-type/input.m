@interface Foo
- run;
+ make;
- at:x put:y;
@end
