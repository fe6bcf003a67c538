# LAPACK's own test programs in single and single complex precision, compiled: for each suite its main programs and an
# archive of the rest. The routines under test are linked later.
version=3.11.0
packages=lapack
objects=658

# The suite's sources but for the main programs, the tests of routines that need the extra-precise BLAS, and those of
# the packed format, which has main programs of its own.
sources_of_suite() {
  find "src/TESTING/$1" -maxdepth 1 -regextype posix-extended -regex '.*/([sc]|al|icopy|ilaenv|xerbla|xlaenv)[^/]*\.[fF]' |
    grep -vE '/[sc](chkaa|chkee|(drv(ge|gb|sy|he|po)|err(ge|sy|he|po))x|errvxx|ebchvxx|[a-z]*rfp|drvrf[1-4])\.[fF]$' | sort
}

write_build_file() {
  local timer=src/INSTALL/second_INT_ETIME.f suite source object objects flags="-O2 -frecursive -std=legacy -w $target_flags"
  ninja_rules
  for suite in LIN EIG MATGEN; do
    objects=()
    for source in $(sources_of_suite $suite) $timer; do
      object=$suite/$(basename "${source%.*}").o
      objects+=("$object")
      ninja_object "$object" "$source" $fc "$flags"
    done
    ninja_archive "liblapack_${suite,,}.a" "${objects[@]}"
  done
  for source in LIN/{s,c}chkaa EIG/{s,c}chkee; do
    ninja_object "$source.o" "src/TESTING/$source.F" $fc "$flags"
  done
}

build() {
  step unpack unpack lapack_3.11.0-2.dsc "$work/src"
  cd "$work"
  mkdir -p LIN EIG MATGEN
  write_build_file >build.ninja
  ninja -j "$jobs"
  install -D -m 644 -t "$prefix/lib" liblapack_{lin,eig,matgen}.a LIN/{s,c}chkaa.o EIG/{s,c}chkee.o
  install -D -m 644 -t "$prefix/share" src/TESTING/*.in
}
