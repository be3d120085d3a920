# Runs the table generator (with the argument ARG, if given) and fails when its output differs from the committed file.
execute_process(COMMAND ${GEN} ${ARG} OUTPUT_FILE ${OUT} RESULT_VARIABLE rc)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "generator failed: ${rc}")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${OUT} ${REF} RESULT_VARIABLE diff)
if(NOT diff EQUAL 0)
  message(FATAL_ERROR "${REF} differs from the generator's output ${OUT}")
endif()
