#i
#i
a
# i
#i x
