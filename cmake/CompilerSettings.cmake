# The flags that every translation unit of ours is compiled with: quorin_flags, and without sanitizers quorin_plain_flags.
add_library(quorin_plain_flags INTERFACE)
add_library(quorin_flags INTERFACE)
target_link_libraries(quorin_flags INTERFACE quorin_plain_flags)
target_compile_features(quorin_plain_flags INTERFACE cxx_std_20 c_std_11)
target_compile_options(quorin_plain_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wundef -Werror
  $<$<COMPILE_LANGUAGE:CXX>:-Wold-style-cast -Wnon-virtual-dtor>
  -fno-math-errno)
target_include_directories(quorin_plain_flags INTERFACE ${PROJECT_SOURCE_DIR} ${PROJECT_BINARY_DIR})

if(WIN32)
  # Hosts align the stack to 4 bytes only, so every function of ours that needs more aligns it itself; floats live in SSE.
  set(QUORIN_ABI_FLAGS -msse2 -mfpmath=sse -mstackrealign -mincoming-stack-boundary=2)
  target_compile_options(quorin_plain_flags INTERFACE ${QUORIN_ABI_FLAGS})
  target_compile_definitions(quorin_plain_flags INTERFACE _WIN32_WINNT=0x0601)
endif()

set(QUORIN_SANITIZE "" CACHE STRING "Sanitizers to build with, as -fsanitize takes them")
add_library(quorin_sanitizer INTERFACE)
target_link_libraries(quorin_flags INTERFACE quorin_sanitizer)
if(QUORIN_SANITIZE)
  target_compile_options(quorin_sanitizer INTERFACE
    -fsanitize=${QUORIN_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(quorin_sanitizer INTERFACE -fsanitize=${QUORIN_SANITIZE})
endif()

# A test that calls the exports, as hosts do, needs no instrumentation of its own, but the sanitizer's runtime and, for
# the order of its own threads, ThreadSanitizer's. And it is compiled for the compiler's speed, not its own.
add_library(quorin_test_flags INTERFACE)
if(QUORIN_SANITIZE MATCHES thread)
  target_link_libraries(quorin_test_flags INTERFACE quorin_flags)
else()
  target_link_libraries(quorin_test_flags INTERFACE quorin_plain_flags)
  target_compile_options(quorin_test_flags INTERFACE -O1)
  if(QUORIN_SANITIZE)
    target_link_options(quorin_test_flags INTERFACE -fsanitize=${QUORIN_SANITIZE})
  endif()
endif()
