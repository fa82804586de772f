# One interface target holds what every target of this project compiles with.
# -ffp-contract=off: without fused multiply-adds the same input gives the same
# bits on every machine and at every optimisation level.
add_library(lintavo_compile_options INTERFACE)
target_compile_options(lintavo_compile_options INTERFACE
  $<$<CXX_COMPILER_ID:GNU,Clang>:-Wall -Wextra -Wpedantic -Wshadow -Wconversion -ffp-contract=off>
  $<$<AND:$<BOOL:${LINTAVO_WARNINGS_AS_ERRORS}>,$<CXX_COMPILER_ID:GNU,Clang>>:-Werror>)

if(LINTAVO_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

# Every part of a fuzzed library counts what is reached. Comparisons are not
# traced: the targets know the words of the files, and it takes a third of the
# time. Casts of numbers that do not fit are no part of the sanitizer's default.
if(LINTAVO_BUILD_FUZZ)
  if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    message(FATAL_ERROR "LINTAVO_BUILD_FUZZ needs clang: use the preset \"fuzz\"")
  endif()
  add_compile_options(-fsanitize-coverage=inline-8bit-counters,pc-table)
  if(LINTAVO_SANITIZE)
    add_compile_options(-fsanitize=float-cast-overflow)
    add_compile_definitions(_GLIBCXX_ASSERTIONS)
  endif()
endif()

# Windows hosts look for lintavo.dll, whichever compiler made it.
if(WIN32)
  set(CMAKE_SHARED_LIBRARY_PREFIX "")
endif()
