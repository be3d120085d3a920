# brenn_add_test(NAME name SOURCES ... [INTERNAL] [LABELS ...] [LIBS ...])
#   A GoogleTest program registered with CTest. Tests link the shared kernel library
#   (the exported boundary) unless INTERNAL, which links the same objects statically
#   to reach hidden functions. Label `threads` marks tests for the ThreadSanitizer
#   run; `nosan` keeps a test out of the sanitizer runs; `slow` out of the quick set.
function(brenn_add_test)
  cmake_parse_arguments(T "INTERNAL" "NAME" "SOURCES;LABELS;LIBS" ${ARGN})
  add_executable(${T_NAME} ${T_SOURCES})
  target_compile_options(${T_NAME} PRIVATE -msse4.2 -ffp-contract=off)
  if(T_INTERNAL)
    target_link_libraries(${T_NAME} PRIVATE brenn_sse42_static)
  else()
    target_link_libraries(${T_NAME} PRIVATE brenn_sse42 brenn_core)
  endif()
  target_link_libraries(${T_NAME} PRIVATE brenn_test_support GTest::gtest_main ${T_LIBS})
  if(T_LABELS)
    gtest_discover_tests(${T_NAME} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60
                         PROPERTIES LABELS "${T_LABELS}")
  else()
    gtest_discover_tests(${T_NAME} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60)
  endif()
endfunction()
