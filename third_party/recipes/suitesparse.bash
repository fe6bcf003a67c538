# AMD, COLAMD and UMFPACK with 32-bit indices, real and complex, on double-precision BLAS. Without CHOLMOD, whose
# orderings would bring in half of the suite. Debian's own libumfpack has it, hence this recipe on linux too. Beside them:
# small matrices for tests.
version=5.12.0
packages=suitesparse
objects=173

# 39 MB packed: only what is used. None of Debian's patches touches it.
extract() {
  rm -rf "$work/src"
  mkdir "$work/src"
  local part parts=()
  for part in SuiteSparse_config AMD COLAMD UMFPACK CXSparse/Matrix KLU/Matrix LDL/Matrix CHOLMOD/Demo/Matrix; do
    parts+=("*/$part")
  done
  tar -xf "$sources/suitesparse_5.12.0+dfsg.orig.tar.xz" -C "$work/src" --strip-components=1 --wildcards "${parts[@]}"
}

# suite_make DIRECTORY OBJECTS: the library's own rules, for a choice of its objects. _POSIX_C_SOURCE: a clock for
# UMFPACK's time statistics.
suite_make() {
  make -C "$work/src/$1" -j "$jobs" static "OBJ=$2" UNAME=Linux AUTOCC=no CUDA=no CFOPENMP= UMFPACK_CONFIG=-DNCHOLMOD \
    CC=$cc AR=$ar RANLIB=$ranlib CF="-O2 -D_POSIX_C_SOURCE=200809L $target_flags"
}

build() {
  step extract extract
  cd "$work/src"
  forget_last_objects .
  suite_make SuiteSparse_config 'SuiteSparse_config.o'
  suite_make AMD/Lib '$(AMDI)'
  suite_make COLAMD/Lib 'colamd.o'
  suite_make UMFPACK/Lib '$(II) $(GN) $(DI) $(ZI)'
  install -D -m 644 -t "$prefix/lib" AMD/Lib/libamd.a COLAMD/Lib/libcolamd.a UMFPACK/Lib/libumfpack.a \
    SuiteSparse_config/libsuitesparseconfig.a
  install -D -m 644 -t "$prefix/include" SuiteSparse_config/SuiteSparse_config.h {AMD,COLAMD}/Include/*amd.h UMFPACK/Include/*.h
  local matrices=$prefix/share/matrices
  mkdir -p "$matrices"
  cp -r UMFPACK/Demo/HB "$matrices/umfpack"
  cp -r CXSparse/Matrix "$matrices/cxsparse"
  cp -r KLU/Matrix "$matrices/klu"
  cp -r LDL/Matrix "$matrices/ldl"
  cp -r CHOLMOD/Demo/Matrix "$matrices/cholmod"
}
