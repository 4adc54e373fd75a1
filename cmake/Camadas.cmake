# The program's targets, one a folder. Each target exposes only its own
# folder: its include root holds that folder alone (as links to its
# headers), so that every include reads "folder/File.h" and a layer can
# include a lower layer's headers only when it links that layer.

# Exposes the headers of BASE/PASTA to ALVO and to whatever links it.
function(sorvelo_expoe alvo base pasta)
  set(raiz ${CMAKE_BINARY_DIR}/inclui/${alvo})
  file(GLOB cabecalhos CONFIGURE_DEPENDS ${base}/${pasta}/*.h)
  file(REMOVE_RECURSE ${raiz})
  file(MAKE_DIRECTORY ${raiz}/${pasta})
  foreach(h ${cabecalhos})
    get_filename_component(nome ${h} NAME)
    file(CREATE_LINK ${h} ${raiz}/${pasta}/${nome} SYMBOLIC)
  endforeach()
  get_target_property(tipo ${alvo} TYPE)
  if(tipo STREQUAL "INTERFACE_LIBRARY")
    target_include_directories(${alvo} INTERFACE ${raiz})
  else()
    target_include_directories(${alvo} PUBLIC ${raiz})
  endif()
endfunction()

# The program's own sources (src/, not the code that moc writes) compile
# with the strict warnings and without implicit conversions of 8-bit text.
set(SORVELO_AVISOS_ESTRITOS -Wpedantic -Wold-style-cast -Wnon-virtual-dtor -Woverloaded-virtual)
set(SORVELO_DEFINICOES_ESTRITAS QT_NO_CAST_FROM_ASCII QT_NO_NARROWING_CONVERSIONS_IN_CONNECT)
function(sorvelo_fontes_estritas)
  set_source_files_properties(${ARGN} PROPERTIES COMPILE_OPTIONS "${SORVELO_AVISOS_ESTRITOS}"
                                                 COMPILE_DEFINITIONS "${SORVELO_DEFINICOES_ESTRITAS}")
endfunction()

# sorvelo_camada(ALVO BASE PASTA [DEPENDE alvos...]): a static library of
# the .cpp files of BASE/PASTA (an interface library while it has none).
function(sorvelo_camada alvo base pasta)
  cmake_parse_arguments(A "" "" "DEPENDE" ${ARGN})
  file(GLOB fontes CONFIGURE_DEPENDS ${base}/${pasta}/*.cpp)
  file(GLOB cabecalhos CONFIGURE_DEPENDS ${base}/${pasta}/*.h)
  if(fontes)
    if(base MATCHES "/src$")
      sorvelo_fontes_estritas(${fontes})
    endif()
    add_library(${alvo} STATIC ${fontes} ${cabecalhos})
    target_link_libraries(${alvo} PUBLIC ${A_DEPENDE})
  else()
    add_library(${alvo} INTERFACE)
    target_link_libraries(${alvo} INTERFACE ${A_DEPENDE})
  endif()
  sorvelo_expoe(${alvo} ${base} ${pasta})
endfunction()

# The logic: Qt Core at most. The layers point down only:
#   base <- platform <- core <- relatorios <- combinacoes <- edicao <- programa
function(sorvelo_logica raiz)
  set(src ${raiz}/src)
  sorvelo_camada(sorvelo_base ${src} base DEPENDE Qt6::Core)
  sorvelo_camada(sorvelo_plataforma ${src} platform DEPENDE sorvelo_base)
  sorvelo_camada(sorvelo_core ${src} core DEPENDE sorvelo_plataforma)
  sorvelo_camada(sorvelo_relatorios ${src} relatorios DEPENDE sorvelo_core)
  sorvelo_camada(sorvelo_combinacoes ${src} combinacoes DEPENDE sorvelo_relatorios)
  sorvelo_camada(sorvelo_edicao ${src} edicao DEPENDE sorvelo_combinacoes)
  sorvelo_camada(sorvelo_programa ${src} programa DEPENDE sorvelo_edicao)
  add_library(sorvelo_logica INTERFACE)
  target_link_libraries(sorvelo_logica INTERFACE sorvelo_programa)
endfunction()
