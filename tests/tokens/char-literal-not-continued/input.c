'a\
b' c
