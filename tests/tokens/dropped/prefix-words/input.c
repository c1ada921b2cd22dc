#if 0
#elsewhere
int a;
#else
int b;
#endifx
int c;
