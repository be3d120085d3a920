# Debian packages made by CPack (`cpack -G DEB` in the build directory) from the
# install components: libbrenn1 (runtime: the two shared libraries), libbrenn-dev
# (headers, the .so links, CMake and pkg-config files) and libbrenn-doc (figures,
# examples, API reference). Dependencies of the runtime package come from
# dpkg-shlibdeps. Build with the `package` preset (prefix /usr, so that the
# libraries land in the multiarch directory), then run scripts/package.sh.
option(BRENN_DEBIAN "Install the files that only the Debian packages carry" OFF)
set(BRENN_DEB_REVISION 1 CACHE STRING "Debian revision of the packages")
set(BRENN_DEB_MAINTAINER "Seed e236a2ca maintainers <maintainers@users.noreply.c-seed-e236a2ca.example>")
set(BRENN_DEB_VERSION ${PROJECT_VERSION}-${BRENN_DEB_REVISION})

set(BRENN_DEB_RUNTIME libbrenn${PROJECT_VERSION_MAJOR})
set(BRENN_DEB_DEV libbrenn-dev)
set(BRENN_DEB_DOC libbrenn-doc)

# Every package carries its own copyright and changelog in /usr/share/doc/<package>.
if(BRENN_DEBIAN)
  configure_file(${PROJECT_SOURCE_DIR}/packaging/changelog.Debian.in
                 ${CMAKE_BINARY_DIR}/packaging/changelog.Debian @ONLY)
  execute_process(COMMAND gzip -9nf ${CMAKE_BINARY_DIR}/packaging/changelog.Debian
                  RESULT_VARIABLE rc)
  if(NOT rc EQUAL 0)
    message(FATAL_ERROR "gzip of the Debian changelog failed")
  endif()
  foreach(c IN ITEMS RUNTIME DEV DOC)
    string(TOLOWER ${c} component)
    install(FILES ${PROJECT_SOURCE_DIR}/packaging/copyright
                  ${CMAKE_BINARY_DIR}/packaging/changelog.Debian.gz
            DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/${BRENN_DEB_${c}} COMPONENT ${component})
  endforeach()
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME brenn)
set(CPACK_PACKAGE_VENDOR "brenn")
set(CPACK_PACKAGE_CONTACT "${BRENN_DEB_MAINTAINER}")
# Each package's description carries its own synopsis; a common summary (CPack takes
# the project's description by default) would be put in front of all three.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_STRIP_FILES ON)
# brenn.pc takes its prefix from the install being made: with DESTDIR, that is /usr
# and not CPack's staging directory.
set(CPACK_SET_DESTDIR ON)
set(CPACK_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})
set(CPACK_COMPONENTS_ALL runtime dev doc ${BRENN_PYTHON_COMPONENTS})

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE ${BRENN_DEB_REVISION})
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${BRENN_DEB_MAINTAINER}")
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)

# Descriptions are plain lines: CPack indents the extended part and turns the empty
# lines into the " ." paragraph separators.
string(CONCAT long_description
       "The kernel library libbrenn_sse42 holds vector mathematics (232 element-wise\n"
       "functions in three accuracy levels with per-element error reporting), random\n"
       "number streams and distributions, summary statistics and data fitting, for\n"
       "x86-64 processors with SSE4.2. The service library libbrenn_core provides\n"
       "memory, messages, the thread pool and the BLAS and LAPACK entries it needs.\n"
       "The front-end libbrenn offers them with checked arguments, threads and plain\n"
       "names to C and C++ programs.")

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${BRENN_DEB_RUNTIME})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_MULTIARCH same)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
# dpkg refreshes the library cache through the ldconfig trigger. (CPack still writes
# maintainer scripts that call ldconfig as well, which lintian warns about.)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/packaging/triggers)
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION
    "numeric kernel library - shared libraries\n${long_description}\n\nThis package holds the three shared libraries.")

set(CPACK_DEBIAN_DEV_PACKAGE_NAME ${BRENN_DEB_DEV})
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEV_PACKAGE_MULTIARCH same)
# brenn.pc names openblas in Requires.private, which pkg-config reads for --cflags too.
set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS "${BRENN_DEB_RUNTIME} (= ${BRENN_DEB_VERSION}), libopenblas-dev")
set(CPACK_DEBIAN_DEV_PACKAGE_SUGGESTS ${BRENN_DEB_DOC})
set(CPACK_DEBIAN_DEV_DESCRIPTION
    "numeric kernel library - development files\n${long_description}\n\nThis package holds the C and C++ headers, the CMake package\n(find_package(brenn), target brenn::brenn) and the pkg-config file brenn.pc.")

set(CPACK_DEBIAN_DOC_PACKAGE_NAME ${BRENN_DEB_DOC})
set(CPACK_DEBIAN_DOC_PACKAGE_SECTION doc)
set(CPACK_DEBIAN_DOC_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_DOC_PACKAGE_MULTIARCH foreign)
set(CPACK_DEBIAN_DOC_DESCRIPTION
    "numeric kernel library - documentation\n${long_description}\n\nThis package holds the API reference, the measured accuracy and speed\nfigures and the sources of the example programs.")

if(BRENN_PYTHON_COMPONENTS)
  include(${PROJECT_SOURCE_DIR}/python/package.cmake)
endif()
include(CPack)
