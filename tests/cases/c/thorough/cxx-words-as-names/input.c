int class;
struct new { int delete; };
int template(int private, int this);
