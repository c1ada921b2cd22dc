const char *a = "\e[1m \%";
char b = '\e';
int c;
