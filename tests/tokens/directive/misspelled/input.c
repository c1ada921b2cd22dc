#inline x
#unknown y
#erase z
#warn a
#problem b
#impact c
#m
de
