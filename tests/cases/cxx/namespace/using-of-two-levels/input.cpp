using a::b::c;
int x;
