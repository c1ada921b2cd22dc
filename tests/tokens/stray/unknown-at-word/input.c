@class Foo;
@private @public @optional
