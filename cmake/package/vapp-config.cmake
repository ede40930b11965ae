# vapp, a library for integrated-circuit design tools.
#
#     find_package(vapp 2019.2 REQUIRED COMPONENTS Core Qt)
#
#     vapp::vapp   the library (component Core, which is there in any case)
#     vapp::qt     the adapter that shows it by Qt widgets (component Qt; brings vapp::vapp)
#     vapp::tcl    Tcl 8.6, for programs that make an interpreter. The library takes the Tcl of the host, whichever it
#                  is, and links none: a host with a Tcl of its own defines a target vapp::tcl before find_package, and
#                  that one stays.
#
# Releases of one year are taken for one another: a request for 2019.1 is content with 2019.2.
include(${CMAKE_CURRENT_LIST_DIR}/vapp-dependencies.cmake)

vapp_check_components(vapp_missing "${vapp_FIND_COMPONENTS}")
if(NOT vapp_missing)
  vapp_find_core_dependencies(vapp_missing)
endif()
if(NOT vapp_missing)
  include(${CMAKE_CURRENT_LIST_DIR}/vapp-targets.cmake)
  set(vapp_Core_FOUND TRUE)
endif()

if(NOT vapp_missing AND "Qt" IN_LIST vapp_FIND_COMPONENTS AND EXISTS ${CMAKE_CURRENT_LIST_DIR}/vapp-qt-targets.cmake)
  # Here and not in a function: what Qt's package sets must reach the caller.
  if(NOT TARGET Qt6::Widgets)
    find_package(Qt6 6.4 QUIET COMPONENTS Widgets)
  endif()
  if(TARGET Qt6::Widgets)
    include(${CMAKE_CURRENT_LIST_DIR}/vapp-qt-targets.cmake)
    set(vapp_Qt_FOUND TRUE)
  elseif(vapp_FIND_REQUIRED_Qt)
    set(vapp_missing "vapp's component Qt needs Qt 6.4 or newer with its module Widgets: install it, or set Qt6_DIR.")
  endif()
endif()

if(vapp_missing)
  set(vapp_FOUND FALSE)
  set(vapp_NOT_FOUND_MESSAGE "${vapp_missing}")
endif()
unset(vapp_missing)
