# OpenBLAS, single-threaded: the workers of base/ thread it, and the product owns its buffers (see private_blas.bash).
# win32: cross-built, with run-time dispatch between two SSE kernel sets. linux: Debian's static archive, which is the
# same release with every x86-64 kernel set.
version=0.3.21
packages='openblas lapack'
inputs='private_blas.bash openblas_names.txt'
objects=1932
debian_archive=/usr/lib/x86_64-linux-gnu/openblas-serial/libopenblas.a

if [[ $target == linux ]]; then
  packages=lapack
  objects=
  key() { dpkg-query -W -f '${Version}' libopenblas-serial-dev; }
fi

# Debian knows no cross build of OpenBLAS, and its dispatcher takes PRESCOTT (SSE3) for granted as the last resort. Ours
# is NORTHWOOD (SSE2), for CPUs without SSE3 and for those that the dispatcher does not know.
prepare() {
  unpack openblas_0.3.21+ds-4.dsc "$work/src"
  sed -i -E 's/^(#define gotoblas_(KATMAI|COPPERMINE|BANIAS|ATHLON|OPTERON)) gotoblas_PRESCOTT$/\1 gotoblas_NORTHWOOD/' \
    "$work/src/driver/others/dynamic.c"
}

# TARGET chooses the instructions of everything outside the kernels. GFORTRAN: complex functions return by value.
# BUFFERSIZE: packing buffers of 2^18 * 32 bytes. USE_LOCKING: callers on several threads at once.
compile() {
  forget_last_objects "$work/src"
  make -C "$work/src" -j "$jobs" libs \
    CC=$cc FC=$fc AR=i686-w64-mingw32-ar RANLIB=i686-w64-mingw32-ranlib HOSTCC=gcc CROSS=1 BINARY=32 \
    F_COMPILER=GFORTRAN TARGET=NORTHWOOD DYNAMIC_ARCH=1 DYNAMIC_LIST=NORTHWOOD \
    USE_THREAD=0 USE_LOCKING=1 NUM_PARALLEL=16 BUFFERSIZE=18 \
    NO_LAPACK=1 NO_LAPACKE=1 NO_CBLAS=1 NO_SHARED=1 NO_AFFINITY=1 NO_WARMUP=1 NO_EXPRECISION=1 BUILD_BFLOAT16=0 \
    COMMON_OPT="-O2 $target_flags"
}

build() {
  source "$here/private_blas.bash"
  lapack_names=$work/lapack-names
  list_lapack_names lapack_3.11.0.orig.tar.gz "$lapack_names"
  if [[ $target == win32 ]]; then
    step prepare prepare
    step compile compile
    private_blas "$work/src/libopenblas.a" "$prefix/lib/libopenblas.a"
  else
    private_blas "$debian_archive" "$prefix/lib/libopenblas.a"
  fi
}
