# What an installed Jorv+ consists of, and its Debian package.
# The programs call each other by name and look for each other beside themselves, so they lie in one folder of their own;
# the folder of all programs holds links to what a user calls.
include(GNUInstallDirs)
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON)  # packing needs no tests
set(ORT ${CMAKE_INSTALL_LIBDIR}/jorvplus)
if(CMAKE_INSTALL_LIBDIR MATCHES "/")  # not among the libraries of one processor
  set(ORT lib/jorvplus)
endif()

install(TARGETS jorv WATIME wav2 wa2 wasoft waprt washmod jorv-wahrheit DESTINATION ${ORT})
set(aufrufe jorv)
if(NOT WIN32)
  install(TARGETS jorv-dos DESTINATION ${ORT})
  install(PROGRAMS werkzeuge/beispiel.sh DESTINATION ${ORT} RENAME jorv-beispiel)
  list(APPEND aufrufe jorv-dos jorv-beispiel)
endif()
install(DIRECTORY ${CMAKE_BINARY_DIR}/beispielnetz/ DESTINATION ${CMAKE_INSTALL_DATADIR}/jorvplus/beispiel)
if(JORV_FENSTER)
  install(TARGETS jorvplus DESTINATION ${ORT})
  list(APPEND aufrufe jorvplus)
  install(DIRECTORY ${JORV_PROGRAMME}/ DESTINATION ${ORT} FILES_MATCHING PATTERN "torel_*.bmp" PATTERN Jorv.ICO
    PATTERN Jorv-Neuerungen.txt PATTERN "JorvPlus-Handbuch.*")
  install(FILES docs/jorvplus.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  install(FILES ${JORV_PROGRAMME}/jorvplus.png
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/256x256/apps)
endif()
install(FILES docs/jorv.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES docs/Handbuch.md docs/Konsole.md docs/Verwalter.md docs/Abhaengigkeiten.md
  DESTINATION ${CMAKE_INSTALL_DOCDIR})
if(NOT WIN32)
  foreach(name ${aufrufe})
    install(CODE "
      set(ordner \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}\")
      file(MAKE_DIRECTORY \"\${ordner}\")
      file(CREATE_LINK ../${ORT}/${name} \"\${ordner}/${name}\" SYMBOLIC)")
  endforeach()
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME jorvplus)
set(CPACK_PACKAGE_CONTACT "Jorv+ <jorvplus@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Workbench for the evaluation of GNSS observations")
set(CPACK_PACKAGE_DESCRIPTION "Takes observation files of rovers and of permanent reference stations into a project,
 assigns stations, computes coordinates rover by rover and files results, protocols and reports. The user interface
 is German.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The solver below the suite, and the German words of the window's own buttons.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "rtklib")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-translations-l10n")
set(CPACK_STRIP_FILES ON)
include(CPack)
