# Cross-compilation for 64-bit Windows with Debian's mingw-w64 (posix threads, SEH exceptions). The SDK holds this file
# too, in a folder beside lib/cmake.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(_triple x86_64-w64-mingw32)
find_program(CMAKE_C_COMPILER NAMES ${_triple}-gcc-posix REQUIRED)
find_program(CMAKE_CXX_COMPILER NAMES ${_triple}-g++-posix REQUIRED)
find_program(CMAKE_RC_COMPILER NAMES ${_triple}-windres REQUIRED)

# find_package(QorUI) finds the SDK that this file is part of.
get_filename_component(_root "${CMAKE_CURRENT_LIST_DIR}" DIRECTORY)
set(CMAKE_FIND_ROOT_PATH /usr/${_triple} "${_root}")
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
