# testar_por_grupos(PROGRAMA [AMBIENTE VAR=valor...]): a test for each group of cases of a program of
# tests, under the group's name. A process for each case would spend more time on starting than on testing, above all
# under the sanitizers. After each build the program itself is asked for its groups.
function(testar_por_grupos programa)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "AMBIENTE")
  set(base ${CMAKE_CURRENT_BINARY_DIR}/${programa})
  add_custom_command(TARGET ${programa} POST_BUILD
    COMMAND ${CMAKE_COMMAND} "-DPROGRAMA=$<TARGET_FILE:${programa}>" "-DAMBIENTE=${arg_AMBIENTE}"
      -DGRUPOS=${base}_grupos.cmake -P ${PROJECT_SOURCE_DIR}/testes/listar_grupos.cmake
    VERBATIM)
  # A program that wasn't built is a test that fails.
  file(WRITE ${base}_testes.cmake "if(EXISTS ${base}_grupos.cmake)\n  include(${base}_grupos.cmake)\n"
    "else()\n  add_test(${programa} ${programa}_por_construir)\nendif()\n")
  set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES ${base}_testes.cmake)
endfunction()
