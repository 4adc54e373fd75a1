# The tutorial Sorvelo.doc: an RTF document written by sorvelo-tutorial from
# docs/tutorial/Sorvelo.txt and the pictures beside it (made by the picture
# tool: captura --tutorial docs/tutorial), into the folder of the program.

add_library(sorvelo_tutorial STATIC tools/tutorial/Documento.cpp tools/tutorial/Documento.h)
target_include_directories(sorvelo_tutorial PUBLIC tools/tutorial)
target_link_libraries(sorvelo_tutorial PUBLIC Qt6::Core)

add_executable(sorvelo-tutorial tools/tutorial/main.cpp)
target_link_libraries(sorvelo-tutorial PRIVATE sorvelo_tutorial)

set(SORVELO_TUTORIAL ${PROJECT_BINARY_DIR}/Sorvelo.doc)
file(GLOB SORVELO_TUTORIAL_IMAGENS CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/docs/tutorial/*.png)
add_custom_command(
  OUTPUT ${SORVELO_TUTORIAL}
  COMMAND sorvelo-tutorial ${PROJECT_SOURCE_DIR}/docs/tutorial/Sorvelo.txt ${PROJECT_SOURCE_DIR}/docs/tutorial
          ${SORVELO_TUTORIAL}
  DEPENDS sorvelo-tutorial ${PROJECT_SOURCE_DIR}/docs/tutorial/Sorvelo.txt ${SORVELO_TUTORIAL_IMAGENS}
  COMMENT "Escrevendo o tutorial Sorvelo.doc"
  VERBATIM)
add_custom_target(tutorial ALL DEPENDS ${SORVELO_TUTORIAL})
