# Installed layout (FHS): programs in bin/, the data files, textures and
# example projects in share/kestrel/ (the programs look there when the data do
# not stand beside them), a desktop entry, the icon, the manual pages and the
# Debian copyright. CPack's Debian generator packs the same tree:
#   cmake --build --preset release --target package  ->  kestrel_<version>_amd64.deb
include(GNUInstallDirs)

install(TARGETS kestrel RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
if(TARGET kestrel-gui)
  install(TARGETS kestrel-gui RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()

set(KESTREL_SHARE ${CMAKE_INSTALL_DATADIR}/kestrel)
install(FILES ${KESTREL_DATA_FILES} DESTINATION ${KESTREL_SHARE})
install(FILES ${KESTREL_EXAMPLES} DESTINATION ${KESTREL_SHARE}/examples)

set(_pk ${CMAKE_SOURCE_DIR}/packaging)
install(FILES ${_pk}/kestrel.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${_pk}/icons/kestrel.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
foreach(taille 16 32 48 64 128 256)
  install(FILES ${_pk}/icons/kestrel_${taille}.png
          DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${taille}x${taille}/apps
          RENAME kestrel.png)
endforeach()

# Manual pages and the Debian changelog go in compressed, without time stamps
# (gzip -n) so that two builds give the same package.
find_program(GZIP_EXE gzip REQUIRED)
set(_gz ${CMAKE_BINARY_DIR}/paquet)
set(_gz_sorties)
foreach(src man/kestrel.1 man/kestrel-gui.1 changelog)
  get_filename_component(nom ${src} NAME)
  add_custom_command(OUTPUT ${_gz}/${nom}.gz
    COMMAND ${CMAKE_COMMAND} -E make_directory ${_gz}
    COMMAND ${GZIP_EXE} -9nc ${_pk}/${src} > ${_gz}/${nom}.gz
    DEPENDS ${_pk}/${src} VERBATIM)
  list(APPEND _gz_sorties ${_gz}/${nom}.gz)
endforeach()
add_custom_target(kestrel_paquet_fichiers ALL DEPENDS ${_gz_sorties})
install(FILES ${_gz}/kestrel.1.gz ${_gz}/kestrel-gui.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${_gz}/changelog.gz ${_pk}/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME kestrel)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_VENDOR "KESTREL maintainers")
set(CPACK_PACKAGE_CONTACT "KESTREL maintainers <maintainers@users.noreply.c-seed-68d13446.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "small-satellite simulator for teaching")
set(CPACK_PACKAGE_DESCRIPTION
  "KESTREL simulates a small Earth-orbiting satellite for teaching and early
engineering: orbit and environment, power system (solar panels, cells,
thermal nodes, battery, power management) and attitude (rigid body, wheels,
dampers, disturbance torques). It has a desktop program in French with
gauges, charts and a three-dimensional view, and a command line that runs
every model for scripts.")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The 3D view draws through Mesa when the machine has no other OpenGL driver.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "libgl1-mesa-dri, qt6-translations-l10n")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
include(CPack)
