# OpenBLAS in double precision for one thread, from the same source as openblas-stock, as a static library: what the peers
# of bench/direct compute with in their second program. Kernels are those that the 32-bit dispatcher picks on today's CPUs.
# Built on request only, for win32; linux has Debian's libopenblas-serial-dev.
version=0.3.21
packages=openblas
objects=900

build() {
  step unpack unpack openblas_0.3.21+ds-4.dsc "$work/src"
  forget_last_objects "$work/src"
  # Its own factorizations of dense matrices are enough: without the target `netlib`, LAPACK's. They want both precisions.
  make -C "$work/src" -j "$jobs" libs \
    CC=$cc FC=$fc AR=i686-w64-mingw32-ar RANLIB=i686-w64-mingw32-ranlib HOSTCC=gcc CROSS=1 CROSS_SUFFIX=i686-w64-mingw32- \
    BINARY=32 F_COMPILER=GFORTRAN TARGET=PRESCOTT DYNAMIC_ARCH=1 DYNAMIC_LIST='NEHALEM BARCELONA' \
    USE_THREAD=0 BUILD_SINGLE=1 BUILD_DOUBLE=1 NO_LAPACKE=1 NO_CBLAS=1
  install -D -m 644 "$(readlink -f "$work"/src/libopenblas.a)" "$prefix/lib/libopenblas.a"
}
