# LAPACK in single and single complex precision, with its deprecated routines; without xerbla, which the product defines.
# Beside it, for tests only: the reference BLAS, and the sources of the BLAS and LAPACK test programs.
version=3.11.0
packages=lapack
objects=1055

# Sources of a directory in single, single complex, or no precision. Left out: xerbla (ours), and the extra-precise
# refinement routines, which need a library that is not here.
sources_of() {
  find "$1" -maxdepth 1 -regextype posix-extended -regex '.*/([sc][^/]*|i[sc][^/]*|ila[^/]*|ieeeck|iparm[^/]*|iparam[^/]*|lsamen?|la_[a-z]*)\.([fF]|[fF]90)' |
    grep -vE '/([sc]la_[^/]*|[^/]*(svxx|rfsx)|second[^/]*|[^/]*tst|[^/]*f77|ila[dz]l[cr])\.[^/]*$' | sort
}

# -frecursive: local arrays on the stack, so that routines may run on several threads at once.
write_build_file() {
  local source object flags="-O2 -frecursive $target_flags" lapack=() blas=() modules=''
  ninja_rules
  for source in $(sources_of src/SRC) $(sources_of src/SRC/DEPRECATED) \
    src/INSTALL/{ilaver,lsame,slamch,sroundup_lwork}.f src/SRC/xerbla_array.f; do
    object=lapack/$(basename "${source%.*}").o
    lapack+=("$object")
    case $source in
      */la_constants.*) modules= ;;
      */la_xisnan.*) modules=lapack/la_constants.o ;;
      *.f90) modules='lapack/la_constants.o lapack/la_xisnan.o' ;;
      *) modules= ;;
    esac
    ninja_object "$object" "$source" $fc "$flags -Jlapack" $modules
  done
  for source in $(sources_of src/BLAS/SRC); do
    object=blas/$(basename "${source%.*}").o
    blas+=("$object")
    ninja_object "$object" "$source" $fc "$flags"
  done
  ninja_archive liblapack.a "${lapack[@]}"
  ninja_archive libreference_blas.a "${blas[@]}"
}

build() {
  step unpack unpack lapack_3.11.0-2.dsc "$work/src"
  cd "$work"
  mkdir -p lapack blas
  write_build_file >build.ninja
  ninja -j "$jobs"
  install -D -m 644 -t "$prefix/lib" liblapack.a libreference_blas.a
  install -D -m 644 -t "$prefix/share/blas-testing" src/BLAS/TESTING/[sc]blat*
  mkdir -p "$prefix/share/lapack-testing"
  cp -r src/TESTING/. "$prefix/share/lapack-testing"
}
