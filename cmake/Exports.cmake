# Keeps in what is not ours to show: the code of static libraries (Tcl's stubs, whose table of functions the host has
# too) and instantiations of the standard library. tools/check-tree reads the result.
function(vapp_keep_in target)
  target_link_options(${target} PRIVATE LINKER:--exclude-libs,ALL)
  if(NOT WIN32)
    set(map ${PROJECT_SOURCE_DIR}/cmake/exports.map)
    target_link_options(${target} PRIVATE LINKER:--version-script=${map})
    set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${map})
  endif()
endfunction()
