NS_AVAILABLE(a(b)
"(" c
)) d;
