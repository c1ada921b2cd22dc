int before;
void (*signal(int, void (*)(int)))(int);
int after;
