# METIS with 32-bit indices and single-precision weights, and the GKlib that it carries, in one archive.
version=5.1.0
packages=metis
objects=62
inputs='metis/globals.h metis/session.h metis/session.c metis/alone.c'

# USE_GKREGEX, the empty sys/resource.h, and no getopt.c: Windows has neither POSIX regular expressions nor that header.
# USE_GKRAND: METIS's own random numbers, the same on every system; the host's rand() stays undisturbed.
# globals.h puts METIS's global variables into sessions: the compiler's thread-local storage in a DLL that comes and goes
# would leak, and random numbers would be shared even so.
# setjmp.h: Microsoft's setjmp reads the exception record at the head of the thread's chain further than the two words that it must
# have, and so faults in a host whose record ends with the stack. The compiler's own does without.
write_build_file() {
  local source object objects=()
  local flags="-O2 -std=gnu99 -fno-strict-aliasing -w -DNDEBUG -DNDEBUG2 -DUSE_GKREGEX -DUSE_GKRAND -D__thread= $target_flags"
  flags+=" -include $here/metis/globals.h -Iempty -Isrc/GKlib -Isrc/libmetis -Isrc/include"
  ninja_rules
  for source in $(find src/GKlib src/libmetis -maxdepth 1 -name '*.c' ! -name getopt.c | sort); do
    object=$(basename "$(dirname "$source")")/$(basename "${source%.c}").o
    objects+=("$object")
    ninja_object "$object" "$source" $cc "$flags"
  done
  for source in session alone; do
    objects+=("$source.o")
    ninja_object "$source.o" "$here/metis/$source.c" $cc "$flags -I$here/metis"
  done
  ninja_archive libmetis.a "${objects[@]}"
}

# The declarations of what globals.h defines otherwise. Of the handlers that METIS puts back nothing is left: ours in the
# place of signal() has none.
take_globals_out() {
  sed -i -E '/^(extern )?__thread (int|jmp_buf) gk_/d; s/^( *)old_SIG(MEM|ERR)_handlers?(\[gk_cur_jbufs\])? *= */\1/
    s/^( *signal\([A-Z]+, *)old_SIG[A-Za-z_]+(\[gk_cur_jbufs\])?\);/\1SIG_DFL);/; /^static __thread gksighandler_t/d' \
    src/GKlib/error.c src/GKlib/gk_externs.h
  sed -i '/^static __thread gk_mcore_t/d' src/GKlib/memory.c
  sed -i -E '/^static (uint64_t mt\[NN\]|int mti=)/d; s/\bmt\[/QUORIN_RANDOM_STATE[/g; s/\bmti\b/QUORIN_RANDOM_USED/g' src/GKlib/random.c
  sed -i -E 's/^#define MAX_JBUFS .*/#define MAX_JBUFS QUORIN_JUMPS/' src/GKlib/error.c
}

build() {
  step unpack unpack metis_5.1.0.dfsg-7.dsc "$work/src"
  cd "$work"
  mkdir -p GKlib libmetis empty/sys
  [[ $target == linux ]] || touch empty/sys/resource.h
  [[ $target == linux ]] || cat >empty/setjmp.h <<'HEADER'
typedef void* jmp_buf[6];
#define setjmp(buffer) (__builtin_setjmp(buffer) == 0 ? 0 : (int)(buffer)[5])
#define longjmp(buffer, value) ((buffer)[5] = (void*)(value), __builtin_longjmp((buffer), 1))
HEADER
  step globals take_globals_out
  write_build_file >build.ninja
  ninja -j "$jobs"
  install -D -m 644 -t "$prefix/lib" libmetis.a
  install -D -m 644 -t "$prefix/include" src/include/metis.h "$here/metis/session.h"
}
