#includes x
#endifx
#undefine y
#macros z
