#dummy x
#defined A
