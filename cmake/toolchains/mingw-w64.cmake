# Builds for 64-bit Windows with Debian's mingw-w64. What Debian does not have for
# Windows lies in build/windows-deps, put there by scripts/windows-deps.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

# The compilers whose standard library has threads.
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

set(windows_deps ${CMAKE_CURRENT_LIST_DIR}/../../build/windows-deps/prefix)
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 ${windows_deps})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# pkg-config must see nothing of the machine that builds.
set(ENV{PKG_CONFIG_LIBDIR}
  "/usr/x86_64-w64-mingw32/lib/pkgconfig:${windows_deps}/lib/pkgconfig")

# Programs and libraries carry the compiler's run time with them: a host copies
# lintavo.dll and needs nothing else.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -static-libgcc -static-libstdc++")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-static -static-libgcc -static-libstdc++")
set(ZLIB_USE_STATIC_LIBS ON)
