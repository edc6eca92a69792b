# A build for Windows on Debian, with its mingw-w64 and the libraries in the folder that MARLBROOK_WINDOWS_SDK names: build.sh finds them or
# makes them. What the build makes and then runs itself, Wine runs.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

set(MARLBROOK_WINDOWS_SDK "$ENV{MARLBROOK_WINDOWS_SDK}" CACHE PATH "The libraries for Windows")
set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES MARLBROOK_WINDOWS_SDK)
set(CMAKE_PREFIX_PATH "${MARLBROOK_WINDOWS_SDK}")
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 "${MARLBROOK_WINDOWS_SDK}")
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# CLI11 is headers alone, the same for every system. They get a folder of their own: what else lies in /usr/include is for this one.
get_property(IS_TRIAL GLOBAL PROPERTY IN_TRY_COMPILE)
if(EXISTS /usr/include/CLI AND NOT IS_TRIAL)
  set(HEADERS "${CMAKE_BINARY_DIR}/headers")
  file(COPY /usr/include/CLI DESTINATION "${HEADERS}/include")
  file(COPY /usr/share/cmake/CLI11 DESTINATION "${HEADERS}/share/cmake")
  list(APPEND CMAKE_PREFIX_PATH "${HEADERS}")
  list(APPEND CMAKE_FIND_ROOT_PATH "${HEADERS}")
endif()

set(QT_HOST_PATH /usr)  # the toolkit's own tools, of the same version
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/x86_64-linux-gnu/cmake)

set(CMAKE_CROSSCOMPILING_EMULATOR "${CMAKE_CURRENT_LIST_DIR}/wine.sh" "${CMAKE_BINARY_DIR}/wine")
