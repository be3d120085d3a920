# Install rules: the shared libraries with versioned SONAMEs, the public headers under
# include/brenn/, the CMake package (brenn::brenn, the front-end with the kernel
# library under it; brenn::kernels; brenn::core) and brenn.pc for consumers, and the documentation with the examples' sources. Components `runtime`,
# `dev` and `doc` are the Debian packages that CPack makes from the same rules.
include(CMakePackageConfigHelpers)

set(BRENN_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/brenn)

# The kernel library finds the service library beside itself ($ORIGIN), wherever the
# prefix is; the build tree's path never reaches an installed file.
# The front-end library (libbrenn) finds both beside itself the same way.
set_target_properties(brenn_sse42 PROPERTIES
  VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR}
  EXPORT_NAME kernels INSTALL_RPATH "$ORIGIN")
set_target_properties(brenn_core PROPERTIES
  VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR} EXPORT_NAME core)
set_target_properties(brenn_frontend PROPERTIES
  VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR}
  EXPORT_NAME brenn INSTALL_RPATH "$ORIGIN")

install(TARGETS brenn_frontend brenn_sse42 brenn_core EXPORT brennTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT dev)

# Headers sit in include/brenn/ and include each other by their flat names; the
# CMake targets and brenn.pc put both include/ and include/brenn/ on the path, so
# <brenn/brenn_rng.h> and <brenn_rng.h> both work.
# The front-end's headers (include/brenn/ in the source tree) go beside them.
file(GLOB BRENN_PUBLIC_HEADERS CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/include/*.h
     ${PROJECT_SOURCE_DIR}/include/brenn/*.h ${PROJECT_SOURCE_DIR}/include/brenn/*.hpp)
install(FILES ${BRENN_PUBLIC_HEADERS} ${BRENN_GENERATED_INCLUDE}/brenn_version.h
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/brenn COMPONENT dev)

install(EXPORT brennTargets NAMESPACE brenn:: DESTINATION ${BRENN_CMAKE_DIR}
  FILE brennTargets.cmake COMPONENT dev)
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/brennConfig.cmake.in
  ${CMAKE_BINARY_DIR}/generated/brennConfig.cmake INSTALL_DESTINATION ${BRENN_CMAKE_DIR})
write_basic_package_version_file(${CMAKE_BINARY_DIR}/generated/brennConfigVersion.cmake
  VERSION ${PROJECT_VERSION} COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_BINARY_DIR}/generated/brennConfig.cmake
              ${CMAKE_BINARY_DIR}/generated/brennConfigVersion.cmake
  DESTINATION ${BRENN_CMAKE_DIR} COMPONENT dev)

# brenn.pc carries absolute paths, so its prefix is the one of the install being
# made (cmake --install --prefix, or /usr for the packages), filled in at install
# time; DESTDIR does not enter it.
set(prefix "@prefix@")
configure_file(${PROJECT_SOURCE_DIR}/cmake/brenn.pc.in ${CMAKE_BINARY_DIR}/generated/brenn.pc.in @ONLY)
unset(prefix)
install(CODE "
  file(READ \"${CMAKE_BINARY_DIR}/generated/brenn.pc.in\" pc)
  string(REPLACE \"@prefix@\" \"\${CMAKE_INSTALL_PREFIX}\" pc \"\${pc}\")
  file(WRITE \"${CMAKE_BINARY_DIR}/generated/brenn.pc\" \"\${pc}\")" COMPONENT dev)
install(FILES ${CMAKE_BINARY_DIR}/generated/brenn.pc
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT dev)

# Documentation: the measured figures, the README, the examples' sources, and the API
# reference when the docs target has made it.
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs/ DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT doc)
install(FILES ${PROJECT_SOURCE_DIR}/README.md DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT doc)
file(GLOB BRENN_EXAMPLE_SOURCES CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/examples/*.cpp
     ${PROJECT_SOURCE_DIR}/examples/*.c)
install(FILES ${BRENN_EXAMPLE_SOURCES} DESTINATION ${CMAKE_INSTALL_DOCDIR}/examples COMPONENT doc)
install(DIRECTORY ${CMAKE_BINARY_DIR}/docs/api/html/ DESTINATION ${CMAKE_INSTALL_DOCDIR}/api
  OPTIONAL COMPONENT doc)
