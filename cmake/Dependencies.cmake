# The libraries that third_party/build made, as imported targets quorin::<name>, and the directories of test material:
#   QUORIN_BLAS_TESTING_DIR    the reference BLAS's test programs and their input
#   QUORIN_LAPACK_TESTING_DIR  LAPACK's test programs, compiled, and their input
#   QUORIN_MATRICES_DIR        small sparse matrices from applications
if(WIN32)
  set(target win32)
else()
  set(target linux)
endif()
set(builder ${PROJECT_SOURCE_DIR}/third_party/build)
set(needed product)
if(QUORIN_BUILD_TESTS)
  list(APPEND needed tests)
endif()
if(QUORIN_BUILD_BENCH)
  list(APPEND needed bench)
endif()
execute_process(COMMAND ${builder} --prefixes ${target} ${needed}
  OUTPUT_VARIABLE prefixes ERROR_VARIABLE error RESULT_VARIABLE status OUTPUT_STRIP_TRAILING_WHITESPACE)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "Dependencies are missing.\n${error}")
endif()
string(REPLACE "\n" ";" prefixes "${prefixes}")
foreach(entry IN LISTS prefixes)
  string(REGEX MATCH "^([^=]+)=(.+)$" entry "${entry}")
  set(prefix_${CMAKE_MATCH_1} ${CMAKE_MATCH_2})
endforeach()

# A recipe that changes has another prefix: configure again then.
file(GLOB recipes ${PROJECT_SOURCE_DIR}/third_party/*.* ${PROJECT_SOURCE_DIR}/third_party/recipes/*)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${builder} ${recipes})

# quorin_import(NAME PREFIX [LINKS ...]): the static library lib<NAME>.a as quorin::<NAME>.
function(quorin_import name prefix)
  cmake_parse_arguments(PARSE_ARGV 2 arg "" "" "LINKS")
  add_library(quorin::${name} STATIC IMPORTED GLOBAL)
  set_target_properties(quorin::${name} PROPERTIES
    IMPORTED_LOCATION ${prefix}/lib/lib${name}.a INTERFACE_LINK_LIBRARIES "${arg_LINKS}")
  if(IS_DIRECTORY ${prefix}/include)
    set_target_properties(quorin::${name} PROPERTIES INTERFACE_INCLUDE_DIRECTORIES ${prefix}/include)
  endif()
endfunction()

# The product carries the Fortran runtime in itself on Windows, where no host has it.
set(fortran_runtime gfortran)
if(WIN32)
  set(fortran_runtime "")
  foreach(library gfortran quadmath)
    execute_process(COMMAND ${CMAKE_Fortran_COMPILER} -print-file-name=lib${library}.a
      OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    list(APPEND fortran_runtime ${path})
  endforeach()
endif()

# LAPACK calls the BLAS by its Fortran names. The product defines those that it exports; the band and packed routines of
# level 2 are the published ones.
quorin_import(reference_blas ${prefix_lapack} LINKS ${fortran_runtime})
quorin_import(lapack ${prefix_lapack} LINKS quorin::reference_blas ${fortran_runtime})
# In double precision, what FEAST needs of LAPACK; the product defines the BLAS's matrix products itself.
quorin_import(reference_blas_double ${prefix_lapack-double} LINKS ${fortran_runtime})
quorin_import(lapack_double ${prefix_lapack-double} LINKS quorin::reference_blas_double ${fortran_runtime})
quorin_import(suitesparseconfig ${prefix_suitesparse})
quorin_import(amd ${prefix_suitesparse} LINKS quorin::suitesparseconfig)
quorin_import(colamd ${prefix_suitesparse} LINKS quorin::suitesparseconfig)
# The product exports UMFPACK's names itself, with float arrays: UMFPACK's own keep out of the way as double_<name>.
include(PrivateUmfpack)
private_umfpack(${prefix_suitesparse} ${PROJECT_BINARY_DIR}/private)
quorin_import(umfpack ${PROJECT_BINARY_DIR}/private LINKS quorin::amd quorin::colamd)
quorin_import(metis ${prefix_metis})

set(QUORIN_BLAS_TESTING_DIR ${prefix_lapack}/share/blas-testing)
set(QUORIN_LAPACK_TESTING_DIR ${prefix_lapack-testing})
set(QUORIN_MATRICES_DIR ${prefix_suitesparse}/share/matrices)

if(QUORIN_BUILD_TESTS)
  if(WIN32)
    set(GTest_DIR ${prefix_googletest}/lib/cmake/GTest)
  endif()
  find_package(GTest REQUIRED)
endif()
if(QUORIN_BUILD_BENCH)
  if(WIN32)
    set(benchmark_DIR ${prefix_benchmark}/lib/cmake/benchmark)
  endif()
  find_package(benchmark REQUIRED)
endif()
