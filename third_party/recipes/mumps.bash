# MUMPS in double precision for one process, without orderings (bench/direct gives it one), and what it calls of LAPACK and
# the reference BLAS. Built on request only.
inputs=recipes/lapack-double.bash
source "$here/$inputs"
eval "lapack_$(declare -f build)"
version=5.5.1
packages='mumps lapack'
objects=240
roots='' # found when MUMPS is there

extract() {
  rm -rf "$work/mumps"
  mkdir "$work/mumps"
  tar -xf "$sources/mumps_5.5.1.orig.tar.gz" -C "$work/mumps" --strip-components=1
  cat >"$work/mumps/Makefile.inc" <<EOT
CC = $cc
FC = $fc
FL = $fc
AR = $ar rc # its makefile puts the archive's name behind it
RANLIB = $ranlib
RM = rm -f
LIBEXT = .a
OUTC = -o # and the file's
OUTF = -o # behind these
CDEFS = -DAdd_ -DWITHOUT_PTHREAD
OPTF = -O2 -fallow-argument-mismatch $target_flags
OPTC = -O2 $target_flags
INCS = -I\$(topdir)/libseq
LIBSEQNEEDED = libseqneeded
EOT
}

# The routines of LAPACK and the BLAS among those that MUMPS does not have itself.
missing_routines() {
  local routine
  cd "$work"
  $nm --undefined-only "$prefix"/lib/*mumps*.a | sed -nE 's/^ *U _?([a-z0-9]+)_$/\1/p' | sort -u |
    while read -r routine; do
      [[ $routine == xerbla || -z $(source_of "$routine") ]] || echo "$routine"
    done
}

build() {
  step extract extract
  step unpack unpack lapack_3.11.0-2.dsc "$work/src"
  forget_last_objects "$work/mumps"
  make -C "$work/mumps" prerequisites
  make -C "$work/mumps/src" -j "$jobs" d
  install -D -m 644 -t "$prefix/lib" "$work"/mumps/lib/lib{dmumps,mumps_common,mpiseq}.a
  install -D -m 644 -t "$prefix/include" "$work"/mumps/include/{dmumps_c,mumps_compat,mumps_c_types,mumps_int_def}.h
  roots=$(missing_routines)
  lapack_build
}
