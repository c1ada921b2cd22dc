TEST(suite) {
  check();
}
