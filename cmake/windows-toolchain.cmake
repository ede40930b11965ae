# Builds Windows programs on Linux, by MinGW-w64 with POSIX threads, and runs them by Wine.
#
# The outside libraries are not packaged for it: tools/windows-libraries builds them once and says where they are. It is
# asked here, so that naming a preset is enough.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

if(NOT VAPP_WINDOWS_LIBRARIES)
  execute_process(COMMAND ${CMAKE_CURRENT_LIST_DIR}/../tools/windows-libraries
    OUTPUT_VARIABLE libraries OUTPUT_STRIP_TRAILING_WHITESPACE RESULT_VARIABLE status)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "tools/windows-libraries could not build the libraries for Windows")
  endif()
  set(VAPP_WINDOWS_LIBRARIES ${libraries})
endif()
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES VAPP_WINDOWS_LIBRARIES)

# Packages that a project names by CMAKE_PREFIX_PATH are for Windows too.
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 ${VAPP_WINDOWS_LIBRARIES} ${CMAKE_PREFIX_PATH})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# A Wine prefix of this build folder's own: neither the user's settings nor another build reach the tests.
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../tools/run-windows ${CMAKE_BINARY_DIR}/wine)
