# Runs dieharder on each generator's raw words, one log a generator in OUT.
file(MAKE_DIRECTORY ${OUT})
separate_arguments(tests UNIX_COMMAND "${TESTS}")
foreach(gen mt19937 mt2203:0 mt2203:6023 mt2203:3001 mt2203:6022 sfmt19937)
  string(REPLACE ":" "_" name ${gen})
  message(STATUS "dieharder ${TESTS} on ${gen}")
  execute_process(COMMAND ${WORDS} ${gen}
                  COMMAND ${DIEHARDER} -g 200 ${tests}
                  OUTPUT_FILE ${OUT}/${name}.txt)
endforeach()
