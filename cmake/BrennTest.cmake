# brenn_add_test(NAME name SOURCES ... [INTERNAL] [LABELS ...] [LIBS ...])
#   A GoogleTest program registered with CTest. Tests link the shared kernel library
#   (the exported boundary) unless INTERNAL, which links the same objects statically
#   to reach hidden functions. Label `threads` marks tests for the ThreadSanitizer
#   run; `nosan` keeps a test out of the sanitizer runs; `slow` out of the quick set.
#   Programs of `threads` tests join the target brenn_threads_tests, so that the
#   ThreadSanitizer run builds only what it runs.
function(brenn_threads_program labels program)
  if("threads" IN_LIST labels)
    set_property(GLOBAL APPEND PROPERTY BRENN_THREADS_PROGRAMS ${program})
  endif()
endfunction()

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
  brenn_threads_program("${T_LABELS}" ${T_NAME})
  if(T_LABELS)
    gtest_discover_tests(${T_NAME} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60
                         PROPERTIES LABELS "${T_LABELS}")
  else()
    gtest_discover_tests(${T_NAME} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60)
  endif()
endfunction()

# brenn_add_python_check(NAME name DRIVER target SOURCES ... SCRIPT file [LABELS ...]
#                        [TIMEOUT seconds])
#   A comparison against numpy/scipy: a driver program built from SOURCES on the shared
#   library, and a script run by Debian's /usr/bin/python3 that feeds the driver and
#   checks its answers (script <driver> <scratch dir>). Without a Python interpreter the
#   test is still registered, and fails, so that a missing oracle is never a pass.
function(brenn_add_python_check)
  cmake_parse_arguments(P "" "NAME;DRIVER;SCRIPT;TIMEOUT" "SOURCES;LABELS" ${ARGN})
  add_executable(${P_DRIVER} ${P_SOURCES})
  target_compile_options(${P_DRIVER} PRIVATE -msse4.2 -ffp-contract=off)
  target_link_libraries(${P_DRIVER} PRIVATE brenn_sse42 brenn_core)
  find_program(BRENN_PYTHON3 NAMES python3 PATHS /usr/bin NO_DEFAULT_PATH)
  find_program(BRENN_PYTHON3 NAMES python3)
  if(BRENN_PYTHON3)
    add_test(NAME ${P_NAME}
             COMMAND ${BRENN_PYTHON3} ${P_SCRIPT} $<TARGET_FILE:${P_DRIVER}>
                     ${CMAKE_CURRENT_BINARY_DIR}/${P_NAME})
  else()
    add_test(NAME ${P_NAME} COMMAND ${CMAKE_COMMAND} -E false)
  endif()
  if(NOT P_TIMEOUT)
    set(P_TIMEOUT 900)
  endif()
  set_tests_properties(${P_NAME} PROPERTIES TIMEOUT ${P_TIMEOUT})
  if(P_LABELS)
    set_tests_properties(${P_NAME} PROPERTIES LABELS "${P_LABELS}")
  endif()
  brenn_threads_program("${P_LABELS}" ${P_DRIVER})
endfunction()
