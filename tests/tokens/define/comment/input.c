#define FOO /* a
b */ 1
#define B x/*
*//*
*/y
c
