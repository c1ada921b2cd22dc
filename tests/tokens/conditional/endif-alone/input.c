#endif
int a;
#endif // b
