# private_umfpack(PREFIX DIRECTORY): a copy of PREFIX's libumfpack.a in DIRECTORY/lib whose public routines are called
# double_umfpack_..., and DIRECTORY/include/umfpack_double.h, which declares them under these names.
function(private_umfpack prefix directory)
  set(original ${prefix}/lib/libumfpack.a)
  execute_process(COMMAND ${CMAKE_NM} --defined-only --extern-only ${original}
    OUTPUT_VARIABLE symbols ERROR_QUIET COMMAND_ERROR_IS_FATAL ANY)
  # On 32-bit Windows symbols begin with an underscore, which is not part of the name.
  string(REGEX MATCHALL "[ \t]T _?umfpack_[a-z_]+" symbols "${symbols}")
  list(TRANSFORM symbols REPLACE "^.T _?" "")
  list(REMOVE_DUPLICATES symbols)
  list(LENGTH symbols count)
  if(count LESS 50)
    message(FATAL_ERROR "Found only ${count} public routines in ${original}")
  endif()

  set(renames "")
  set(definitions "")
  foreach(name IN LISTS symbols)
    string(APPEND renames "${name} double_${name}\n_${name} _double_${name}\n")
    string(APPEND definitions "#define ${name} double_${name}\n")
  endforeach()
  file(CONFIGURE OUTPUT ${directory}/renames.txt CONTENT "${renames}" @ONLY)
  file(CONFIGURE OUTPUT ${directory}/include/umfpack_double.h @ONLY CONTENT
"/* UMFPACK's interface for double arrays. Generated. Include this instead of umfpack.h. */
#ifndef QUORIN_UMFPACK_DOUBLE_H
#define QUORIN_UMFPACK_DOUBLE_H
${definitions}#include <umfpack.h>
#endif
")

  set(copy ${directory}/lib/libumfpack.a)
  if(${original} IS_NEWER_THAN ${copy} OR ${directory}/renames.txt IS_NEWER_THAN ${copy})
    file(MAKE_DIRECTORY ${directory}/lib)
    execute_process(COMMAND ${CMAKE_OBJCOPY} --redefine-syms=${directory}/renames.txt ${original} ${copy}
      COMMAND_ERROR_IS_FATAL ANY)
  endif()
endfunction()
