# Steps that the recipes share. third_party/build sources this file and one recipe; then these are set:
#   target   win32 or linux            work     the recipe's own unfinished directory; its log is there
#   jobs     parallel compilations     prefix   where the recipe installs to (moved into the cache when all is done)
#   here     third_party/              sources  verified source archives
set -euo pipefail

if [[ $target == win32 ]]; then
  readonly cc=i686-w64-mingw32-gcc-posix fc=i686-w64-mingw32-gfortran-posix
  readonly ar=i686-w64-mingw32-gcc-ar-posix ranlib=i686-w64-mingw32-gcc-ranlib-posix
  readonly nm=i686-w64-mingw32-nm objcopy=i686-w64-mingw32-objcopy
  # Hosts align the stack to 4 bytes only; floating point lives in SSE registers, whatever the CPU.
  readonly target_flags='-msse2 -mfpmath=sse -mstackrealign -mincoming-stack-boundary=2'
else
  readonly cc=gcc fc=gfortran ar=ar ranlib=ranlib nm=nm objcopy=objcopy
  readonly target_flags=-fPIC
fi

# step NAME COMMAND...: runs the command unless an earlier, interrupted build has finished it.
step() {
  local name=$1
  shift
  [[ -e $work/$name.done ]] && return
  echo "== $name"
  "$@"
  touch "$work/$name.done"
}

# unpack DSC DIRECTORY: a Debian source package with Debian's patches applied.
unpack() {
  rm -rf "$2"
  dpkg-source --no-check -x "$sources/$1" "$2"
}

# An interrupted compiler may leave half an object behind, and make would believe it: forget the newest few.
forget_last_objects() {
  find "$1" \( -name '*.o' -o -name '*.obj' \) -printf '%T@ %p\n' | sort -rn |
    awk -v count=$((2 * jobs)) 'NR <= count {print $2}' | xargs -r rm -f
}

# A build file for ninja on standard output: ninja_rules, then ninja_object and ninja_archive lines.
ninja_rules() {
  cat <<EOF
rule compile
  command = \$compiler \$flags -c \$in -o \$out
rule archive
  command = rm -f \$out && $ar rcs \$out @\$out.members
  rspfile = \$out.members
  rspfile_content = \$in
EOF
}

# ninja_object OBJECT SOURCE COMPILER FLAGS [ORDER-ONLY PREREQUISITE...]
ninja_object() {
  local object=$1 source=$2 compiler=$3 flags=$4
  shift 4
  printf 'build %s: compile %s%s\n  compiler = %s\n  flags = %s\n' "$object" "$source" "${*:+ || $*}" "$compiler" "$flags"
}

# ninja_archive ARCHIVE OBJECT...
ninja_archive() {
  local archive=$1
  shift
  echo "build $archive: archive $*"
}

# with_cmake SOURCE OPTION...: configures, builds and installs a project that brings its own CMake files.
with_cmake() {
  local source=$1
  shift
  local toolchain=()
  [[ $target == win32 ]] && toolchain=(-DCMAKE_TOOLCHAIN_FILE="$here/../cmake/toolchain-i686-w64-mingw32.cmake")
  cmake -S "$source" -B "$work/build" -G Ninja "${toolchain[@]}" -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_INSTALL_PREFIX="$prefix" -DCMAKE_INSTALL_LIBDIR=lib -DBUILD_SHARED_LIBS=OFF \
    -DCMAKE_C_FLAGS="$target_flags" -DCMAKE_CXX_FLAGS="$target_flags" "$@"
  cmake --build "$work/build" -j "$jobs"
  cmake --install "$work/build"
}
