# Copies data/ (tables, textures) next to the binaries, where the program looks
# for them (dossier_depart). Re-run at every build so an edited file follows.
file(GLOB KESTREL_DATA_FILES CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/data/*.txt ${CMAKE_SOURCE_DIR}/data/*.png)
set(_copies)
foreach(f IN LISTS KESTREL_DATA_FILES)
  get_filename_component(n ${f} NAME)
  add_custom_command(OUTPUT ${KESTREL_BIN_DIR}/${n}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${KESTREL_BIN_DIR}
    COMMAND ${CMAKE_COMMAND} -E copy_if_different ${f} ${KESTREL_BIN_DIR}/${n}
    DEPENDS ${f} VERBATIM)
  list(APPEND _copies ${KESTREL_BIN_DIR}/${n})
endforeach()
# The example projects too, so the program's file dialogs (which open in its
# own folder) show them.
file(GLOB KESTREL_EXAMPLES CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/examples/*.pwr)
foreach(f IN LISTS KESTREL_EXAMPLES)
  get_filename_component(n ${f} NAME)
  add_custom_command(OUTPUT ${KESTREL_BIN_DIR}/examples/${n}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${KESTREL_BIN_DIR}/examples
    COMMAND ${CMAKE_COMMAND} -E copy_if_different ${f} ${KESTREL_BIN_DIR}/examples/${n}
    DEPENDS ${f} VERBATIM)
  list(APPEND _copies ${KESTREL_BIN_DIR}/examples/${n})
endforeach()
add_custom_target(kestrel_data ALL DEPENDS ${_copies})
