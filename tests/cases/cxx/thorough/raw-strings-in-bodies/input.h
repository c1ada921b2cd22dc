void a() {
  read(R"(
    } int b();
  )");
}
int c();
