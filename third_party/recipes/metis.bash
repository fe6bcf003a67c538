# METIS with 32-bit indices and single-precision weights, and the GKlib that it carries, in one archive.
version=5.1.0
packages=metis
objects=60

# USE_GKREGEX, the empty sys/resource.h, and no getopt.c: Windows has neither POSIX regular expressions nor that header.
# USE_GKRAND: METIS's own random numbers, the same on every system; the host's rand() stays undisturbed.
# __thread is emptied: thread-local storage of a DLL that comes and goes would leak. METIS also sets signal handlers
# while it works; so callers hold a lock.
# setjmp.h: Microsoft's setjmp reads the exception record at the head of the thread's chain further than the two words that it must
# have, and so faults in a host whose record ends with the stack. The compiler's own does without.
write_build_file() {
  local source object objects=()
  local flags="-O2 -std=gnu99 -fno-strict-aliasing -w -DNDEBUG -DNDEBUG2 -DUSE_GKREGEX -DUSE_GKRAND -D__thread= $target_flags"
  flags+=' -Iempty -Isrc/GKlib -Isrc/libmetis -Isrc/include'
  ninja_rules
  for source in $(find src/GKlib src/libmetis -maxdepth 1 -name '*.c' ! -name getopt.c | sort); do
    object=$(basename "$(dirname "$source")")/$(basename "${source%.c}").o
    objects+=("$object")
    ninja_object "$object" "$source" $cc "$flags"
  done
  ninja_archive libmetis.a "${objects[@]}"
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
  write_build_file >build.ninja
  ninja -j "$jobs"
  install -D -m 644 -t "$prefix/lib" libmetis.a
  install -D -m 644 -t "$prefix/include" src/include/metis.h
}
