"a\
b" x
"a\
b" "a\b"
