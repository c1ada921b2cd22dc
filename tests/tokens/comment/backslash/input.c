// comment \
int x;
