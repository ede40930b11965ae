# What Windows programs need beside them when they run: Tcl and the compiler's runtime as DLLs, and Tcl's scripts where its
# DLL looks for them, in ../lib of the program's folder.
find_file(TCL_DLL tcl86.dll PATHS ${VAPP_WINDOWS_LIBRARIES}/bin NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH REQUIRED)
get_filename_component(folder ${TCL_DLL} DIRECTORY)
file(GLOB VAPP_RUNTIME_DLLS ${folder}/*.dll)
if(VAPP_CHECKED)
  # The guards of stack frames are in a DLL of the compiler's own.
  execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=libssp-0.dll
    OUTPUT_VARIABLE guards OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  list(APPEND VAPP_RUNTIME_DLLS ${guards})
endif()
get_filename_component(VAPP_TCL_SCRIPTS ${folder}/../lib/tcl8.6 ABSOLUTE)
file(COPY ${VAPP_RUNTIME_DLLS} DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
file(CREATE_LINK ${VAPP_TCL_SCRIPTS} ${CMAKE_BINARY_DIR}/lib/tcl8.6 SYMBOLIC COPY_ON_ERROR)
