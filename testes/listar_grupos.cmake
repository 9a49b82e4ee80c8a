# Writes into GRUPOS a test for each group of cases of PROGRAMA; each runs in the environment AMBIENTE. See
# `testar_por_grupos`.
execute_process(COMMAND ${CMAKE_COMMAND} -E env ${AMBIENTE} ${PROGRAMA} --gtest_list_tests
  OUTPUT_VARIABLE casos COMMAND_ERROR_IS_FATAL ANY)
# A group's line begins it and ends in a point, those of its cases are indented.
string(REGEX MATCHALL "(^|\n)[^ \n]+\\.[ \n]" grupos "${casos}")
if(NOT grupos)
  message(FATAL_ERROR "${PROGRAMA} has no tests")
endif()
get_filename_component(pasta ${GRUPOS} DIRECTORY)
set(testes "")
foreach(grupo IN LISTS grupos)
  string(REGEX REPLACE "\\.?[ \n]" "" grupo "${grupo}")
  string(APPEND testes "add_test([=[${grupo}]=] [=[${PROGRAMA}]=] [=[--gtest_filter=${grupo}.*]=])\n"
    "set_tests_properties([=[${grupo}]=] PROPERTIES WORKING_DIRECTORY [=[${pasta}]=] ENVIRONMENT [=[${AMBIENTE}]=])\n")
endforeach()
file(WRITE ${GRUPOS} "${testes}")
