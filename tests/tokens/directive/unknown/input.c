#line 3
# 4 "a.c"
#ident "x"
#assert b
#sccs
#
#ex
