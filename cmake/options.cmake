# How the targets are compiled. Code that ships links reelora_options, tests link reelora_test_options.

add_library(reelora_common_options INTERFACE)
target_compile_features(reelora_common_options INTERFACE cxx_std_20)
if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
  target_compile_options(reelora_common_options INTERFACE -Wall -Wextra -Wpedantic)
  if(REELORA_WARNINGS_AS_ERRORS)
    target_compile_options(reelora_common_options INTERFACE -Werror)
  endif()
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # GCC 12 warns falsely about overlaps in string concatenation.
  target_compile_options(reelora_common_options INTERFACE -Wno-restrict)
endif()
if(REELORA_SANITIZE)
  target_compile_options(reelora_common_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer -g1)
  target_link_options(reelora_common_options INTERFACE -fsanitize=address,undefined)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # With sanitizers GCC 12 warns falsely about std::regex.
    target_compile_options(reelora_common_options INTERFACE -Wno-maybe-uninitialized)
  endif()
endif()
if(REELORA_COVERAGE)
  # Atomic: the sort counts in several threads.
  target_compile_options(reelora_common_options INTERFACE --coverage -O0 -fprofile-update=atomic)
  target_link_options(reelora_common_options INTERFACE --coverage)
endif()

add_library(reelora_options INTERFACE)
target_link_libraries(reelora_options INTERFACE reelora_common_options)
# Only here: optimized, a sanitized test takes three times as long to compile.
target_compile_options(reelora_options INTERFACE $<$<BOOL:${REELORA_SANITIZE}>:-O1>)
# libFuzzer needs to know what an input reaches. Counters alone cost the sanitized tests little.
set(libfuzzer OFF)
if(REELORA_SANITIZE AND CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
  set(libfuzzer ON)
  set(coverage -fsanitize-coverage=inline-8bit-counters,pc-table)
  if(REELORA_FUZZ)
    set(coverage -fsanitize=fuzzer-no-link)
    # For code that compares no bytes of an input: traced, its comparisons of controls take a sixth of the time.
    set(no_comparisons -fno-sanitize-coverage=trace-cmp)
  endif()
  target_compile_options(reelora_options INTERFACE ${coverage})
endif()

# Tests compile with -O1 for speed, those of the target property REELORA_PLAIN with -O0; the code under test is built as
# shipped.
add_library(reelora_test_options INTERFACE)
target_link_libraries(reelora_test_options INTERFACE reelora_common_options)
target_compile_options(reelora_test_options INTERFACE
  $<$<CONFIG:Release>:$<IF:$<BOOL:$<TARGET_PROPERTY:REELORA_PLAIN>>,-O0,-O1>>)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # GCC 12 warns falsely about strings whose header is precompiled.
  target_compile_options(reelora_test_options INTERFACE -Wno-array-bounds -Wno-stringop-overflow -Wno-stringop-overread)
endif()

# Precompiled. A compiler cache is faster than precompiled headers, and together they do not work.
set(standard_headers <algorithm> <array> <filesystem> <functional> <iostream> <map> <memory> <optional> <sstream>
  <string> <string_view> <vector>)
set(common_headers ${standard_headers} ${PROJECT_SOURCE_DIR}/screen/frmPage1.h)
if(CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_DISABLE_PRECOMPILE_HEADERS ON)
endif()
