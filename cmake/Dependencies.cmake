# The open libraries that the rooms link. Tcl comes by its stubs library, so that the library runs in
# whatever Tcl 8.6 the host brings.
find_package(Threads REQUIRED)
find_path(TCL_INCLUDE_DIR tcl.h PATH_SUFFIXES tcl8.6 tcl REQUIRED)
find_library(TCL_STUB_LIBRARY NAMES tclstub8.6 tclstub86 REQUIRED)
find_library(TCL_LIBRARY NAMES tcl8.6 tcl86 REQUIRED)

add_library(Tcl::headers INTERFACE IMPORTED)
target_include_directories(Tcl::headers SYSTEM INTERFACE ${TCL_INCLUDE_DIR})
add_library(Tcl::stub INTERFACE IMPORTED)
target_compile_definitions(Tcl::stub INTERFACE USE_TCL_STUBS)
target_link_libraries(Tcl::stub INTERFACE Tcl::headers ${TCL_STUB_LIBRARY})
# Hosts and tests bring the interpreter itself.
add_library(Tcl::interpreter INTERFACE IMPORTED)
target_link_libraries(Tcl::interpreter INTERFACE Tcl::headers ${TCL_LIBRARY})

# Boost.Logic's three-valued bool: headers only, and in our own interface.
find_path(BOOST_INCLUDE_DIR boost/logic/tribool.hpp REQUIRED)
add_library(Boost::logic INTERFACE IMPORTED)
target_include_directories(Boost::logic SYSTEM INTERFACE ${BOOST_INCLUDE_DIR})

if(WIN32)
  set(VAPP_PLATFORM_LIBRARIES advapi32 ole32 shell32 user32 uuid version ws2_32 Threads::Threads)
else()
  find_package(PkgConfig REQUIRED)
  pkg_check_modules(ICU REQUIRED IMPORTED_TARGET icu-uc)
  set(VAPP_PLATFORM_LIBRARIES PkgConfig::ICU Threads::Threads)
endif()
if(VAPP_QT)
  find_package(Qt6 6.4 REQUIRED COMPONENTS Core Gui Svg Widgets)
endif()

if(WIN32)
  include(WindowsRuntime)
endif()
