# Installing Sorvelo as a Linux desktop program, and its Debian package.
#
# The program lives in its own folder, <prefix>/lib/sorvelo, with the data
# files that it looks for beside its own file: the super-reduction tables
# (*.sv, from the folder dados/ when there are any) and the tutorial
# Sorvelo.doc. A launcher in <prefix>/bin starts it; the desktop entry, the
# icon in SVG and PNG sizes and the MIME type of the bet files (*.Apo) go
# where the desktop looks for them.

set(SORVELO_PASTA_PROGRAMA lib/sorvelo)

install(TARGETS sorvelo RUNTIME DESTINATION ${SORVELO_PASTA_PROGRAMA})

file(GLOB SORVELO_TABELAS CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/dados/*.sv)
if(SORVELO_TABELAS)
  install(FILES ${SORVELO_TABELAS} DESTINATION ${SORVELO_PASTA_PROGRAMA})
endif()

if(TARGET tutorial)
  install(FILES ${SORVELO_TUTORIAL} DESTINATION ${SORVELO_PASTA_PROGRAMA})
endif()

configure_file(${PROJECT_SOURCE_DIR}/desktop/sorvelo.in ${PROJECT_BINARY_DIR}/lancador/sorvelo @ONLY)
install(PROGRAMS ${PROJECT_BINARY_DIR}/lancador/sorvelo DESTINATION bin)

install(FILES ${PROJECT_SOURCE_DIR}/desktop/sorvelo.desktop DESTINATION share/applications)
install(FILES ${PROJECT_SOURCE_DIR}/desktop/sorvelo-apostas.xml DESTINATION share/mime/packages)
install(FILES ${PROJECT_SOURCE_DIR}/desktop/icones/sorvelo.svg DESTINATION share/icons/hicolor/scalable/apps)
foreach(lado 16 24 32 48 64 128 256)
  install(FILES ${PROJECT_SOURCE_DIR}/desktop/icones/${lado}x${lado}/sorvelo.png
          DESTINATION share/icons/hicolor/${lado}x${lado}/apps)
endforeach()

# cpack -G DEB in the build folder.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME sorvelo)
set(CPACK_PACKAGE_VENDOR "Sorvelo")
set(CPACK_PACKAGE_CONTACT "Sorvelo <suporte@sorvelo.com.br>")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://www.sorvelo.com.br")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Bancada de apostas para as loterias brasileiras")
set(CPACK_PACKAGE_DESCRIPTION
    "O Sorvelo prepara apostas da Mega-Sena, Dupla Sena, Quina, Lotomania e Lotofácil: combinações completas e reduzidas, fechamentos, apostas sorteadas ou digitadas, filtro, conferência contra um resultado, impressão e arquivos de apostas (.Apo).")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_DEPENDS
    "libc6, libstdc++6, libqt6core6 (>= 6.4), libqt6gui6 (>= 6.4), libqt6widgets6 (>= 6.4), libqt6printsupport6 (>= 6.4), qt6-qpa-plugins")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-translations-l10n, shared-mime-info, fonts-liberation2, xdg-utils")
include(CPack)
