#if (0)
a
#if !1
b
#if 1
c
#if0
d
