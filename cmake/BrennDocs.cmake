# The API reference: Doxygen (Debian's doxygen) over the public headers, into
# <build>/docs/api/html, installed with the documentation when it has been made.
# Undocumented entries, arguments and return values are warnings: the target counts
# them, prints the count and writes it with the list to <build>/docs/undocumented.txt.
set(BRENN_DOCS_DIR ${CMAKE_BINARY_DIR}/docs/api)
find_program(BRENN_DOXYGEN doxygen)
if(BRENN_DOXYGEN)
  file(GLOB BRENN_DOCS_HEADERS CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/include/*.h)
  list(APPEND BRENN_DOCS_HEADERS ${BRENN_GENERATED_INCLUDE}/brenn_version.h)
  list(JOIN BRENN_DOCS_HEADERS " " BRENN_DOCS_INPUT)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/Doxyfile.in ${CMAKE_BINARY_DIR}/docs/Doxyfile @ONLY)
  add_custom_command(
    OUTPUT ${BRENN_DOCS_DIR}/html/index.html ${CMAKE_BINARY_DIR}/docs/undocumented.txt
    COMMAND ${CMAKE_COMMAND} -DDOXYGEN=${BRENN_DOXYGEN} -DCONFIG=${CMAKE_BINARY_DIR}/docs/Doxyfile
            -DOUT=${BRENN_DOCS_DIR} -DREPORT=${CMAKE_BINARY_DIR}/docs/undocumented.txt
            -P ${PROJECT_SOURCE_DIR}/cmake/BrennDocsRun.cmake
    DEPENDS ${BRENN_DOCS_HEADERS} ${CMAKE_BINARY_DIR}/docs/Doxyfile
            ${PROJECT_SOURCE_DIR}/cmake/BrennDocsRun.cmake
    COMMENT "API reference (Doxygen)")
  add_custom_target(docs DEPENDS ${BRENN_DOCS_DIR}/html/index.html)
else()
  add_custom_target(docs
    COMMAND ${CMAKE_COMMAND} -E echo "docs: doxygen is not installed (bash scripts/install-deps.sh)"
    COMMAND ${CMAKE_COMMAND} -E false)
endif()
