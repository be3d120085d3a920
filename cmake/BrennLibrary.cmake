# Builds the kernel library from every source under the subsystem directories.
# A subsystem adds code by adding files; its exported names go into an
# `exports.list` file in its directory (one name a line, '#' comments), and the
# vector-math names come from the row list. The version script and the expected
# export list are generated from both.
#
# BRENN_SUBSYSTEMS narrows a developer's build to some subsystems (the frame is
# always in): -DBRENN_SUBSYSTEMS=rng builds the frame and rng only, with their tests.
set(BRENN_SUBSYSTEMS "vecmath;rng;stats;fitting" CACHE STRING "Subsystems to build besides the frame")
# The statistics estimates draw their random subsets and imputations from the library's
# own generators, and their compute calls the vector square root, reciprocal and the
# Gaussian's kernels: a build with stats brings rng and vecmath along.
if("stats" IN_LIST BRENN_SUBSYSTEMS)
  foreach(dep vecmath rng)
    if(NOT dep IN_LIST BRENN_SUBSYSTEMS)
      list(APPEND BRENN_SUBSYSTEMS ${dep})
    endif()
  endforeach()
endif()
# The front-end, the tour and examples, installation and packages need every service:
# a narrowed build leaves them out.
set(BRENN_FULL_BUILD ON)
foreach(sub vecmath rng stats fitting)
  if(NOT sub IN_LIST BRENN_SUBSYSTEMS)
    set(BRENN_FULL_BUILD OFF)
  endif()
endforeach()
function(brenn_add_kernel_library)
  set(dirs frame ${BRENN_SUBSYSTEMS})
  set(sources)
  set(lists)
  foreach(d IN LISTS dirs)
    file(GLOB_RECURSE s CONFIGURE_DEPENDS
         ${PROJECT_SOURCE_DIR}/${d}/*.cpp ${PROJECT_SOURCE_DIR}/${d}/*.S)
    list(APPEND sources ${s})
    file(GLOB_RECURSE l CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${d}/exports.list)
    list(APPEND lists ${l})
  endforeach()
  list(FILTER sources EXCLUDE REGEX "/gen/")
  # The distribution generators call the scalar set-up logarithms (__qesdLn,
  # __qessLn) directly; a build with rng and without vecmath takes just those and
  # their table.
  if("rng" IN_LIST BRENN_SUBSYSTEMS AND NOT "vecmath" IN_LIST BRENN_SUBSYSTEMS)
    list(APPEND sources ${PROJECT_SOURCE_DIR}/vecmath/explog/scalar_log.cpp
                        ${PROJECT_SOURCE_DIR}/vecmath/explog/explog_tables.cpp)
  endif()
  list(SORT lists)

  # Host program that expands the row list into names and declarations.
  add_executable(brenn_gen_exports ${PROJECT_SOURCE_DIR}/frame/gen/gen_exports.cpp)
  target_include_directories(brenn_gen_exports PRIVATE ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/include)
  set(gen ${CMAKE_BINARY_DIR}/generated)
  add_custom_command(
    OUTPUT ${gen}/brenn_sse42.map ${gen}/brenn_sse42.exports
    COMMAND brenn_gen_exports map ${gen}/brenn_sse42.map ${lists}
    COMMAND brenn_gen_exports list ${gen}/brenn_sse42.exports ${lists}
    DEPENDS brenn_gen_exports ${lists} ${PROJECT_SOURCE_DIR}/frame/rows.def
    COMMENT "Generating the export list of the kernel library")
  add_custom_target(brenn_exports DEPENDS ${gen}/brenn_sse42.map ${gen}/brenn_sse42.exports)

  add_library(brenn_sse42_objects OBJECT ${sources})
  target_include_directories(brenn_sse42_objects PUBLIC ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/include
                             ${BRENN_GENERATED_INCLUDE})
  target_compile_options(brenn_sse42_objects PRIVATE $<$<COMPILE_LANGUAGE:CXX>:${BRENN_LIB_FLAGS}>)
  target_compile_definitions(brenn_sse42_objects PRIVATE BRENN_KERNEL_BUILD)

  add_library(brenn_sse42 SHARED $<TARGET_OBJECTS:brenn_sse42_objects>)
  add_dependencies(brenn_sse42 brenn_exports)
  target_include_directories(brenn_sse42 PUBLIC
    $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include> $<BUILD_INTERFACE:${BRENN_GENERATED_INCLUDE}>
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}> $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/brenn>)
  target_link_options(brenn_sse42 PRIVATE -Wl,--version-script=${gen}/brenn_sse42.map
                      -Wl,-z,noexecstack -Wl,--no-undefined)
  set_target_properties(brenn_sse42 PROPERTIES LINK_DEPENDS ${gen}/brenn_sse42.map)
  target_link_libraries(brenn_sse42 PRIVATE brenn_core Threads::Threads ${CMAKE_DL_LIBS} m
                        ${LAPACK_LIBRARIES} ${BLAS_LIBRARIES})

  # The same objects linked straight into a program, for tests and tools that reach
  # internal functions. Objects, not an archive: the table's weak references to
  # kernels and generators would not pull members out of an archive.
  add_library(brenn_sse42_static INTERFACE)
  target_sources(brenn_sse42_static INTERFACE $<TARGET_OBJECTS:brenn_sse42_objects>)
  add_dependencies(brenn_sse42_static brenn_sse42_objects)
  target_include_directories(brenn_sse42_static INTERFACE ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/include
                             ${BRENN_GENERATED_INCLUDE})
  target_link_libraries(brenn_sse42_static INTERFACE brenn_core Threads::Threads ${CMAKE_DL_LIBS} m
                        ${LAPACK_LIBRARIES} ${BLAS_LIBRARIES})
endfunction()
