int a NS_AVAILABLE ;
int b;
