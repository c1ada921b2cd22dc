@selector(x)
@encode(y)
@import z;
@protected
@properties
