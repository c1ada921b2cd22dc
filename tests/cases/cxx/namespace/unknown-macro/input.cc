namespace N EXPORT {
int a;
}
int b;
