# The model library must stay free of Qt: fail the configure step if any Qt
# target reaches kestrel_core or one of its layers, directly or through an
# interface.
foreach(cible IN ITEMS kestrel_core ${KESTREL_COUCHES})
  foreach(prop LINK_LIBRARIES INTERFACE_LINK_LIBRARIES)
    get_target_property(_libs ${cible} ${prop})
    if(_libs)
      foreach(l IN LISTS _libs)
        if(l MATCHES "Qt[0-9]*::" OR l MATCHES "^Qt")
          message(FATAL_ERROR "${cible} must not link Qt (found ${l} in ${prop})")
        endif()
      endforeach()
    endif()
  endforeach()
endforeach()
