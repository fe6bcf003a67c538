# GoogleTest, for the tests.
version=1.12.1
packages=googletest

build() {
  step unpack unpack googletest_1.12.1-0.2.dsc "$work/src"
  with_cmake "$work/src" -DBUILD_GMOCK=OFF
}
