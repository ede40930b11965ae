# What `cmake --install` lays down, and how other projects find it: headers, the shared libraries, the program, and the
# package for find_package and for pkg-config. Nothing that is written here names a folder of this machine, so the
# installed tree may be moved as a whole.
include(CMakePackageConfigHelpers)

set(VAPP_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/vapp)

set_target_properties(vapp PROPERTIES EXPORT_NAME vapp)
install(TARGETS vapp EXPORT vapp-targets
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(DIRECTORY include/vapp DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
  FILES_MATCHING PATTERN "*.h" PATTERN "vapp/toolkit/qt" EXCLUDE)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/include/vapp/Version.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/vapp)
install(EXPORT vapp-targets NAMESPACE vapp:: DESTINATION ${VAPP_CMAKE_DIR})

if(VAPP_QT)
  # Libraries that stand together find one another, and the program finds them, wherever the tree stands.
  file(RELATIVE_PATH library_folder ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
  set_target_properties(vapp_qt PROPERTIES EXPORT_NAME qt INSTALL_RPATH "$ORIGIN")
  set_target_properties(navigator PROPERTIES INSTALL_RPATH "$ORIGIN/${library_folder}")
  install(TARGETS vapp_qt EXPORT vapp-qt-targets
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
  install(DIRECTORY include/vapp/toolkit/qt DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/vapp/toolkit
    FILES_MATCHING PATTERN "*.h")
  install(EXPORT vapp-qt-targets NAMESPACE vapp:: DESTINATION ${VAPP_CMAKE_DIR})
  install(TARGETS navigator RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
  install(DIRECTORY examples/sample DESTINATION ${CMAKE_INSTALL_DATADIR}/vapp/examples)
endif()

# On Windows a program finds its DLLs in its own folder or in the path, and Tcl its scripts in ../lib of its DLL.
if(WIN32)
  install(FILES ${VAPP_RUNTIME_DLLS} DESTINATION ${CMAKE_INSTALL_BINDIR})
  install(DIRECTORY ${VAPP_TCL_SCRIPTS}/ DESTINATION lib/tcl8.6)
endif()

# A year's releases compile what was written for an earlier one of that year; see docs/decisions/0075.
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/package/vapp-config-version.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES
  ${CMAKE_CURRENT_BINARY_DIR}/package/vapp-config-version.cmake
  cmake/package/vapp-config.cmake
  cmake/package/vapp-dependencies.cmake
  DESTINATION ${VAPP_CMAKE_DIR})

# Folders from the root of the installed tree on, and the way up to it from where pkg-config finds its files.
file(RELATIVE_PATH VAPP_PC_LIBRARIES ${CMAKE_INSTALL_PREFIX} ${CMAKE_INSTALL_FULL_LIBDIR})
file(RELATIVE_PATH VAPP_PC_HEADERS ${CMAKE_INSTALL_PREFIX} ${CMAKE_INSTALL_FULL_INCLUDEDIR})
file(RELATIVE_PATH VAPP_PC_UP ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
string(REGEX REPLACE "/$" "" VAPP_PC_UP ${VAPP_PC_UP})
# Systems differ in whether Tcl's file carries its version in its name.
if(NOT WIN32)
  foreach(package tcl tcl8.6)
    pkg_check_modules(VAPP_PC_FOUND_${package} QUIET ${package}>=8.6 ${package}<9)
    if(VAPP_PC_FOUND_${package}_FOUND)
      set(VAPP_PC_TCL "${package} >= 8.6, ${package} < 9")
    endif()
  endforeach()
endif()
set(packages vapp)
if(VAPP_QT)
  list(APPEND packages vapp-qt)
endif()
foreach(package ${packages})
  configure_file(cmake/package/${package}.pc.in package/${package}.pc @ONLY)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/package/${package}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endforeach()
