# A stock, threaded 32-bit OpenBLAS DLL from the same source: what bench/ compares the product with. Built on request
# only. The kernel sets are those that OpenBLAS's 32-bit dispatcher picks on CPUs of the last fifteen years; double
# precision, CBLAS and LAPACK are left out to save time, all else is as it comes.
version=0.3.21
packages=openblas
objects=1814

# The Windows thread server names block sizes of the precisions that are left out, in branches that then never run.
prepare() {
  unpack openblas_0.3.21+ds-4.dsc "$work/src"
  sed -i -E 's/\bD(GEMM_[PQ])/S\1/g; s/\bZ(GEMM_[PQ])/C\1/g' "$work/src/driver/others/blas_server_win32.c"
}

stock_make() {
  make -C "$work/src" -j "$jobs" "$@" \
    CC=$cc FC=$fc AR=i686-w64-mingw32-ar RANLIB=i686-w64-mingw32-ranlib HOSTCC=gcc CROSS=1 CROSS_SUFFIX=i686-w64-mingw32- \
    BINARY=32 F_COMPILER=GFORTRAN TARGET=PRESCOTT DYNAMIC_ARCH=1 DYNAMIC_LIST='NORTHWOOD NEHALEM BARCELONA' \
    USE_THREAD=1 NUM_THREADS=16 BUILD_SINGLE=1 BUILD_COMPLEX=1 NO_LAPACK=1 NO_LAPACKE=1 NO_CBLAS=1 LDFLAGS=-static
}

build() {
  step prepare prepare
  forget_last_objects "$work/src"
  step compile stock_make libs
  stock_make shared
  install -D -m 644 -t "$prefix/bin" "$work/src/libopenblas.dll"
}
