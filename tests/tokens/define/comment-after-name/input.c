#define FOO/* a
b */
