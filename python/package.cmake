# The python3-brenn Debian package (CPack component `python`): the package brenn in
# /usr/lib/python3/dist-packages, depending on the exact runtime package, the
# interpreter release it was built for and numpy. Included by BrennPackage.cmake
# before CPack when the Python package is built.
if(BRENN_DEBIAN)
  install(FILES ${PROJECT_SOURCE_DIR}/packaging/copyright
                ${CMAKE_BINARY_DIR}/packaging/changelog.Debian.gz
          DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/python3-brenn COMPONENT python)
endif()
string(REPLACE "." ";" py_parts ${BRENN_PYTHON_VERSION})
list(GET py_parts 0 py_major)
list(GET py_parts 1 py_minor)
math(EXPR py_next_minor "${py_minor} + 1")
set(CPACK_DEBIAN_PYTHON_PACKAGE_NAME python3-brenn)
set(CPACK_DEBIAN_PYTHON_PACKAGE_SECTION python)
set(CPACK_DEBIAN_PYTHON_PACKAGE_DEPENDS
    "${BRENN_DEB_RUNTIME} (= ${BRENN_DEB_VERSION}), python3 (>= ${BRENN_PYTHON_VERSION}~), python3 (<< ${py_major}.${py_next_minor}), python3-numpy, libc6 (>= 2.34), libgcc-s1 (>= 3.0), libstdc++6 (>= 11)")
set(CPACK_DEBIAN_PYTHON_PACKAGE_SUGGESTS "python3-scipy")
set(CPACK_DEBIAN_PYTHON_DESCRIPTION
    "numeric kernel library - Python 3 package\n${long_description}\n\nThis package holds the Python 3 package brenn: vector mathematics at three\naccuracy levels on numpy arrays, the generators as numpy bit generators,\nsummary statistics and splines.")
