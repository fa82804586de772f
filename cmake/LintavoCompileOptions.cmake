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
