# Programs for Windows, built on Debian with mingw-w64 and tried under Wine. werkzeuge/windows.sh makes what they need.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
# A program is one file: none of the compiler's libraries has to lie beside it.
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)
set(CMAKE_CROSSCOMPILING_EMULATOR wine)

set(CMAKE_FIND_ROOT_PATH ${CMAKE_CURRENT_LIST_DIR}/../bau/windows/bedarf/einrichtung)
set(CMAKE_CXX_STANDARD_INCLUDE_DIRECTORIES ${CMAKE_FIND_ROOT_PATH}/include)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
foreach(art LIBRARY INCLUDE PACKAGE)
  set(CMAKE_FIND_ROOT_PATH_MODE_${art} ONLY)
endforeach()
# The module of the library's Debian package knows nothing of static libraries.
set(CMAKE_FIND_PACKAGE_PREFER_CONFIG ON)
