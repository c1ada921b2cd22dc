#if 0
/* a */ #endif
int b;
#if 0
/* c */#if X
/**/#endif
int d;
#endif
