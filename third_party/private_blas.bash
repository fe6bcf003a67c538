# private_blas IN OUT: the copy of an OpenBLAS archive that the product links.
#
#   - The routines in openblas_names.txt become openblas_<name>: the product defines those names itself.
#   - OpenBLAS's buffer allocator becomes openblas_builtin_memory_*: the product defines blas_memory_alloc and
#     blas_memory_free, and every other object of the archive reaches those.
#   - LAPACK routines and xerbla go: LAPACK has a recipe of its own, and the product reports argument errors.
#
# $lapack_names is a file of LAPACK's routine names, one a line. Checks its own work and fails when a name is amiss.
private_blas() {
  local in=$1 out=$2 scratch=$work/private underscore=''
  [[ $target == win32 ]] && underscore=_
  rm -rf "$scratch"
  mkdir -p "$scratch"
  cp "$in" "$scratch/blas.a"

  local members=$scratch/members doomed=$scratch/doomed
  "$ar" t "$scratch/blas.a" >"$members"
  grep -xE "($(paste -sd'|' "$lapack_names"))\.(o|obj)" "$members" >"$doomed" || true
  xargs -r -a "$doomed" "$ar" d "$scratch/blas.a"

  local allocator
  allocator=$(grep -xE 'memory\.(o|obj)' "$members")
  (cd "$scratch" && "$ar" x blas.a "$allocator")
  "$objcopy" --redefine-sym "${underscore}blas_memory_alloc=${underscore}openblas_builtin_memory_alloc" \
    --redefine-sym "${underscore}blas_memory_free=${underscore}openblas_builtin_memory_free" "$scratch/$allocator"
  "$ar" r "$scratch/blas.a" "$scratch/$allocator"

  local names
  names=$(sed 's/#.*//' "$here/openblas_names.txt")
  printf "${underscore}%s_ ${underscore}openblas_%s_\n" $(for name in $names; do echo "$name $name"; done) >"$scratch/renames"
  "$objcopy" --redefine-syms="$scratch/renames" "$scratch/blas.a"
  "$ranlib" "$scratch/blas.a"

  "$nm" "$scratch/blas.a" 2>/dev/null | awk 'NF == 3 && $2 ~ /[TDBRC]/ {print $3}' | sort >"$scratch/defined"
  "$nm" "$scratch/blas.a" 2>/dev/null | awk '$1 == "U" {print $2}' | sort -u >"$scratch/undefined"
  local old new
  while read -r old new; do
    [[ $(grep -cxF -- "$new" "$scratch/defined") == 1 ]] || { echo "$new is not defined exactly once"; return 1; }
    ! grep -qxF -- "$old" "$scratch/defined" "$scratch/undefined" || { echo "$old is still there"; return 1; }
  done <"$scratch/renames"
  local name
  for name in blas_memory_alloc blas_memory_free xerbla_; do
    grep -qxF "$underscore$name" "$scratch/undefined" || { echo "$name is not left to the product"; return 1; }
    ! grep -qxF "$underscore$name" "$scratch/defined" || { echo "$name is defined in the archive"; return 1; }
  done
  mkdir -p "$(dirname "$out")"
  mv "$scratch/blas.a" "$out"
}

# lapack_names DSC FILE: the names of all LAPACK routines, from the names of LAPACK's source files.
list_lapack_names() {
  tar -tf "$sources/$1" | sed -nE 's,^[^/]+/(SRC/|SRC/DEPRECATED/|INSTALL/)([a-z0-9_]+)\.[fF](90)?$,\2,p' | sort -u >"$2"
  [[ $(wc -l <"$2") -gt 1500 ]]
}
