# CHOLMOD with 32-bit indices, without its partitions and updates, and the AMD and COLAMD that it calls: what bench/direct
# compares L L' with. Built on request only.
version=5.12.0
packages=suitesparse
objects=70

extract() {
  rm -rf "$work/src"
  mkdir "$work/src"
  tar -xf "$sources/suitesparse_5.12.0+dfsg.orig.tar.xz" -C "$work/src" --strip-components=1 --wildcards \
    '*/SuiteSparse_config' '*/AMD' '*/COLAMD' '*/CHOLMOD'
}

# suite_make DIRECTORY OBJECTS: the library's own rules, for a choice of its objects.
suite_make() {
  make -C "$work/src/$1" -j "$jobs" static "OBJ=$2" UNAME=Linux AUTOCC=no CUDA=no CFOPENMP= GPU_CONFIG= \
    CHOLMOD_CONFIG='-DNPARTITION -DNCAMD -DNMODIFY -DNTIMER' CC=$cc AR=$ar RANLIB=$ranlib \
    CF="-O3 -D_POSIX_C_SOURCE=200809L $target_flags"
}

build() {
  step extract extract
  cd "$work/src"
  forget_last_objects .
  suite_make SuiteSparse_config 'SuiteSparse_config.o'
  suite_make AMD/Lib '$(AMDI)'
  suite_make COLAMD/Lib 'colamd.o'
  suite_make CHOLMOD/Lib '$(CORE) cholmod_check.o $(CHOLESKY) $(MATRIXOPS) $(SUPERNODAL)'
  install -D -m 644 -t "$prefix/lib" CHOLMOD/Lib/libcholmod.a
  install -D -m 644 -t "$prefix/include" SuiteSparse_config/SuiteSparse_config.h CHOLMOD/Include/*.h
}
