# What an installation offers its hosts: the CMake package and the pkg-config
# files. Both find the library from where they lie, so an installed tree can be
# moved.
include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/lintavo)
set(pkgconfig_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

# What a C++ compiler links by itself and a C compiler does not; a C host of a
# static library names it.
set(LINTAVO_RUNTIME_LIBS ${CMAKE_CXX_IMPLICIT_LINK_LIBRARIES})
list(FILTER LINTAVO_RUNTIME_LIBS INCLUDE REGEX "^(stdc\\+\\+|c\\+\\+|c\\+\\+abi|m)$")
list(REMOVE_DUPLICATES LINTAVO_RUNTIME_LIBS)

configure_package_config_file(cmake/lintavoConfig.cmake.in
  ${PROJECT_BINARY_DIR}/lintavoConfig.cmake
  INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/lintavoConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(EXPORT lintavoTargets NAMESPACE lintavo:: DESTINATION ${package_dir}
  COMPONENT development)
install(FILES
  ${PROJECT_BINARY_DIR}/lintavoConfig.cmake
  ${PROJECT_BINARY_DIR}/lintavoConfigVersion.cmake
  DESTINATION ${package_dir} COMPONENT development)

# A shared library brings its own dependencies; a static one leaves them to the
# host's link line, and its hosts must not ask for imported symbols.
set(LINTAVO_PC_REQUIRES "")
set(LINTAVO_DRAWING_PC_REQUIRES "lintavo = ${PROJECT_VERSION}")
set(LINTAVO_PC_CFLAGS "")
set(LINTAVO_PC_LIBS "")
if(NOT BUILD_SHARED_LIBS)
  set(LINTAVO_PC_REQUIRES "zlib polyclipping")
  if(LINTAVO_WITH_CAIRO)
    string(APPEND LINTAVO_DRAWING_PC_REQUIRES " cairo cairo-svg cairo-pdf cairo-png")
  endif()
  set(LINTAVO_PC_CFLAGS " -DLINTAVO_STATIC")
  foreach(lib ${LINTAVO_RUNTIME_LIBS})
    string(APPEND LINTAVO_PC_LIBS " -l${lib}")
  endforeach()
endif()

# The way from the folder of the pkg-config files up to the prefix.
cmake_path(IS_ABSOLUTE CMAKE_INSTALL_LIBDIR libdir_is_absolute)
if(libdir_is_absolute)
  set(LINTAVO_PC_PREFIX ${CMAKE_INSTALL_PREFIX})
else()
  file(RELATIVE_PATH up "/prefix/${pkgconfig_dir}" "/prefix")
  string(REGEX REPLACE "/$" "" up "${up}")
  set(LINTAVO_PC_PREFIX "\${pcfiledir}/${up}")
endif()
foreach(dir LIBDIR INCLUDEDIR)
  cmake_path(IS_ABSOLUTE CMAKE_INSTALL_${dir} is_absolute)
  if(is_absolute)
    set(LINTAVO_PC_${dir} ${CMAKE_INSTALL_${dir}})
  else()
    set(LINTAVO_PC_${dir} "\${prefix}/${CMAKE_INSTALL_${dir}}")
  endif()
endforeach()

set(pkgconfig_files lintavo)
if(LINTAVO_BUILD_TOOLS)
  list(APPEND pkgconfig_files lintavo-drawing)
endif()
foreach(file ${pkgconfig_files})
  configure_file(cmake/${file}.pc.in ${PROJECT_BINARY_DIR}/${file}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/${file}.pc DESTINATION ${pkgconfig_dir}
    COMPONENT development)
endforeach()
