# Runs a table generator and compares its output with the committed table. The generator
# writes the file named by OUT, or, given SCRIPT (a sollya or Python script that GEN
# runs), prints the table to standard output.
if(DEFINED SCRIPT)
  execute_process(COMMAND ${GEN} ${SCRIPT} OUTPUT_FILE ${OUT} RESULT_VARIABLE rc)
else()
  execute_process(COMMAND ${GEN} ${OUT} RESULT_VARIABLE rc)
endif()
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "generator failed: ${GEN}")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${OUT} ${COMMITTED} RESULT_VARIABLE differ)
if(NOT differ EQUAL 0)
  message(FATAL_ERROR "${COMMITTED} differs from a fresh generation (${OUT})")
endif()
