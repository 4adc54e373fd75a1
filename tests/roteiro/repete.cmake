# Runs one scenario VEZES times, each in a fresh folder, and requires the
# same transcript and status every time: -DROTEIRO= -DCENARIO= -DVEZES= -DTRABALHO=
file(REMOVE_RECURSE ${TRABALHO})
foreach(vez RANGE 1 ${VEZES})
  file(MAKE_DIRECTORY ${TRABALHO}/pasta${vez})
  execute_process(COMMAND ${ROTEIRO} ${CENARIO} WORKING_DIRECTORY ${TRABALHO}/pasta${vez}
                  OUTPUT_FILE ${TRABALHO}/transcricao${vez}.txt ERROR_VARIABLE erros RESULT_VARIABLE status)
  if(vez EQUAL 1)
    set(primeiroStatus ${status})
    file(SIZE ${TRABALHO}/transcricao1.txt tamanho)
    if(tamanho EQUAL 0)
      message(FATAL_ERROR "a primeira execução não escreveu nada (status ${status})\n${erros}")
    endif()
    continue()
  endif()
  execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${TRABALHO}/transcricao1.txt
                          ${TRABALHO}/transcricao${vez}.txt RESULT_VARIABLE diferente)
  if(diferente OR NOT "${status}" STREQUAL "${primeiroStatus}")
    message(FATAL_ERROR "a execução ${vez} difere da primeira (status ${status} e ${primeiroStatus})\n${erros}")
  endif()
endforeach()
