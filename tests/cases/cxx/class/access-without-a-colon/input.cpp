class A {
public int a;
};
