# quorin_add_test_program(NAME [ENGINE] SOURCE ...): a program beside the product, which it runs against without an
# installation. With ENGINE it is compiled with the product's own flags, because it shares inline functions with it.
function(quorin_add_test_program name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "ENGINE" "" "")
  add_executable(${name} ${arg_UNPARSED_ARGUMENTS})
  target_link_libraries(${name} PRIVATE $<IF:$<BOOL:${arg_ENGINE}>,quorin_flags,quorin_test_flags>)
  target_compile_definitions(${name} PRIVATE QUORIN_PRODUCT_FILE="$<TARGET_FILE_NAME:quorin_lapacks>")
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR})
  if(WIN32)
    target_link_options(${name} PRIVATE -static)
  endif()
endfunction()

# quorin_add_test(NAME SOURCES ... [ENGINE | HOST] [LINKS ...] [ARGS ...] [TIMEOUT seconds] [SERIAL])
#
# A GoogleTest program, run under Wine on win32. It calls the library through its exports, as a host does; with ENGINE it
# links the modules themselves instead; with HOST nothing, because it loads the product itself, and perhaps an allocator
# that can be told to fail (see tests/support/host_module.hpp). A SERIAL test runs while no other does: it waits for
# threads to come and go, or takes the whole machine.
function(quorin_add_test name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "ENGINE;HOST;SERIAL" "TIMEOUT" "SOURCES;LINKS;ARGS")
  set(engine "")
  if(arg_ENGINE)
    set(engine ENGINE)
  endif()
  quorin_add_test_program(${name} ${engine} ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE GTest::gtest_main ${arg_LINKS})
  if(arg_ENGINE)
    target_link_libraries(${name} PRIVATE quorin_engine)
  elseif(arg_HOST)
    add_dependencies(${name} quorin_lapacks imalloc_complete)
    target_link_libraries(${name} PRIVATE quorin_test_support)
  else()
    target_link_libraries(${name} PRIVATE quorin_lapacks)
  endif()
  add_test(NAME ${name} COMMAND ${name} --gtest_brief=1 ${arg_ARGS})
  if(NOT arg_TIMEOUT)
    set(arg_TIMEOUT 900)
  endif()
  set_tests_properties(${name} PROPERTIES TIMEOUT ${arg_TIMEOUT} RUN_SERIAL ${arg_SERIAL})
endfunction()
