# Runs the runner with ARGUMENTOS and requires exit status ESPERADO and, when
# given, a text CONTEM in what it wrote (standard output and error).
separate_arguments(lista UNIX_COMMAND "${ARGUMENTOS}")
execute_process(COMMAND ${ROTEIRO} ${lista} RESULT_VARIABLE status OUTPUT_VARIABLE saida ERROR_VARIABLE erros)
if(NOT "${status}" STREQUAL "${ESPERADO}")
  message(FATAL_ERROR "saiu com ${status}, esperado ${ESPERADO}\n${saida}${erros}")
endif()
if(DEFINED CONTEM)
  string(FIND "${saida}${erros}" "${CONTEM}" onde)
  if(onde EQUAL -1)
    message(FATAL_ERROR "a saída não contém \"${CONTEM}\":\n${saida}${erros}")
  endif()
endif()
