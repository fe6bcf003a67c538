# cmake -D PORT_DIRECTORY=... -D RELEASE=... -D PREFIX=... -P try_port.cmake: the steps of a port without vcpkg. What the port calls does
# here what vcpkg's documentation says of it.
cmake_minimum_required(VERSION 3.23)
set(PORT quorin-lapacks)
set(DOWNLOADS ${PREFIX}/downloads)
set(CURRENT_PACKAGES_DIR ${PREFIX}/packages)
set(ENV{QUORIN_LAPACKS_RELEASE} ${RELEASE})

function(vcpkg_check_linkage)
endfunction()

# Unpacks the archive, and goes into its only folder.
function(vcpkg_extract_source_archive result)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "ARCHIVE" "")
  file(ARCHIVE_EXTRACT INPUT "${arg_ARCHIVE}" DESTINATION "${PREFIX}/source")
  file(GLOB folder "${PREFIX}/source/*")
  set(${result} "${folder}" PARENT_SCOPE)
endfunction()

function(vcpkg_install_copyright)
  cmake_parse_arguments(PARSE_ARGV 0 arg "" "" "FILE_LIST")
  foreach(file IN LISTS arg_FILE_LIST)
    file(READ "${file}" text)
    file(APPEND "${CURRENT_PACKAGES_DIR}/share/${PORT}/copyright" "${text}")
  endforeach()
endfunction()

include(${PORT_DIRECTORY}/portfile.cmake)
