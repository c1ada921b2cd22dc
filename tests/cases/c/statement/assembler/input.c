asm("nop");
__asm__ volatile ("nop");
int a;
