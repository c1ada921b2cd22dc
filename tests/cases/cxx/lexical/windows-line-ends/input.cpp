int a;
void f()
{
}
int b;
