# Runs PROGRAMA as it is, and with a C library that is told to do without the newer instructions, point by point
# and at the widest: the model's digits must be the same each time. What the library itself gave is told.
set(velho "GLIBC_TUNABLES=glibc.cpu.hwcaps=-FMA,-FMA4,-AVX2")
foreach(ambiente "VARENTA_LARGURA=" "VARENTA_LARGURA=escalar" "${velho}" "${velho};VARENTA_LARGURA=escalar")
  execute_process(COMMAND ${CMAKE_COMMAND} -E env ${ambiente} ${PROGRAMA}
    OUTPUT_VARIABLE saida COMMAND_ERROR_IS_FATAL ANY)
  message(STATUS "${ambiente}: ${saida}")
  string(REGEX MATCH "modelo [0-9a-f]+" modelo "${saida}")
  if(NOT modelo OR (DEFINED primeiro AND NOT modelo STREQUAL primeiro))
    message(FATAL_ERROR "Outros dígitos: ${modelo} em vez de ${primeiro}")
  endif()
  set(primeiro "${modelo}")
endforeach()
