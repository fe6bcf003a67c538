# What the export tables say, written out for this build: entry points, Fortran names, .def files, version script.
#   generated   the directory of these files
#   bindings    that of the declarations for hosts in other languages than C
#   tables      the tables
set(generated ${PROJECT_BINARY_DIR}/generated)
set(bindings ${generated}/bindings)
set(exports ${PROJECT_SOURCE_DIR}/exports)
file(GLOB tables CONFIGURE_DEPENDS ${exports}/tables/*.table)
file(GLOB generator ${exports}/generator/*.py ${exports}/generator/bindings/*.py)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${tables} ${generator} ${exports}/generate.py)
execute_process(
  COMMAND ${Python3_EXECUTABLE} ${exports}/generate.py --build ${generated} --bindings ${bindings}
  COMMAND_ERROR_IS_FATAL ANY)
