# Google Benchmark, for bench/.
version=1.7.1
packages=benchmark

build() {
  step unpack unpack benchmark_1.7.1-1.dsc "$work/src"
  with_cmake "$work/src" -DGIT_VERSION=$version -DBENCHMARK_ENABLE_TESTING=OFF -DBENCHMARK_ENABLE_GTEST_TESTS=OFF \
    -DBENCHMARK_INSTALL_DOCS=OFF -DBENCHMARK_ENABLE_WERROR=OFF
}
