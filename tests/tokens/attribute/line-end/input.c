__attribute__
((x)) __attribute__;
