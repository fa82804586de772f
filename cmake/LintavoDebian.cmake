# Debian packages by cpack: the shared libraries with the command, and what is
# needed to build against them.
#
#   cmake --preset release -DCMAKE_INSTALL_PREFIX=/usr && cmake --build --preset release
#   cpack --config build/release/CPackConfig.cmake -B build/packages
if(WIN32 OR NOT BUILD_SHARED_LIBS)
  return()
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME lintavo)
set(CPACK_PACKAGE_VENDOR "Lintavo")
set(CPACK_PACKAGE_CONTACT "Lintavo maintainers <lintavo@localhost>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL runtime development)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION libs)

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME lintavo)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION
  "Parametric windows for architectural design programs
Libraries that read, fit, calculate and draw windows, and the command lintavo.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME lintavo-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "lintavo (= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SHLIBDEPS OFF)
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION
  "Parametric windows, files for development
Headers for C++ and C, the CMake package and the pkg-config files.")

# The runtime package runs ldconfig, as the libraries lie in the linker's path.
set(CPACK_DEBIAN_RUNTIME_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_GENERATE_SHLIBS_POLICY ">=")

include(CPack)
