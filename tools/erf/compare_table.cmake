# Runs an error-function generator (for one PART, when it writes several) and compares
# its output with the committed file.
execute_process(COMMAND ${GEN} ${PART} ${OUT} RESULT_VARIABLE rc)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "generator failed: ${GEN} ${PART}")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${OUT} ${COMMITTED} RESULT_VARIABLE differ)
if(NOT differ EQUAL 0)
  message(FATAL_ERROR "${COMMITTED} differs from a fresh generation (${OUT})")
endif()
