# Eigenvalues of dense symmetric and Hermitian matrices in double precision: the few routines of LAPACK named below with
# all that they call, and the reference BLAS under them. Without xerbla, which the product defines, as it does the
# matrix products. The product computes with these routines and exports none.
version=3.11.0
packages=lapack
objects=148
# The last two are for tests only.
roots='dsyevd zheevd dsygv zhegv'

# source_of ROUTINE: its file, or nothing.
source_of() {
  find src/BLAS/SRC src/SRC src/INSTALL -maxdepth 1 -regextype posix-extended -regex ".*/$1\.([fF]|[fF]90)" -print -quit
}

# -frecursive: local arrays on the stack, so that routines may run on several threads at once.
write_build_file() {
  local routine source modules flags="-O2 -frecursive $target_flags" lapack=(la_constants.o la_xisnan.o) blas=()
  ninja_rules
  ninja_object la_constants.o src/SRC/la_constants.f90 $fc "$flags"
  ninja_object la_xisnan.o src/SRC/la_xisnan.F90 $fc "$flags" la_constants.o
  for routine in "$@"; do
    source=$(source_of "$routine") modules=''
    [[ $source != *.f90 ]] || modules='la_constants.o la_xisnan.o'
    if [[ $source == src/BLAS/* ]]; then blas+=("$routine.o"); else lapack+=("$routine.o"); fi
    ninja_object "$routine.o" "$source" $fc "$flags" $modules
  done
  ninja_archive liblapack_double.a "${lapack[@]}"
  ninja_archive libreference_blas_double.a "${blas[@]}"
}

# The routines that the objects call and none of them is, as far as there is a source.
called_routines() {
  local routine
  $nm --undefined-only -- *.o | sed -nE 's/^ *U _?([a-z0-9]+)_$/\1/p' | sort -u |
    while read -r routine; do
      [[ $routine == xerbla || -e $routine.o || -z $(source_of "$routine") ]] || echo "$routine"
    done
}

build() {
  step unpack unpack lapack_3.11.0-2.dsc "$work/src"
  cd "$work"
  local routines=($roots) called=(.)
  while [[ ${#called[@]} -gt 0 ]]; do
    write_build_file "${routines[@]}" >build.ninja
    ninja -j "$jobs"
    mapfile -t called < <(called_routines)
    routines+=("${called[@]}")
  done
  install -D -m 644 -t "$prefix/lib" liblapack_double.a libreference_blas_double.a
}
