# The libraries this project stands on, built as static libraries from Debian's source packages (and GoogleTest from
# /usr/src/googletest).  On Windows with vcpkg the same set comes from vcpkg.json and the packages are found instead.
include_guard(GLOBAL)

option(QOR_SYSTEM_LIBRARIES "Find the libraries as packages (vcpkg) instead of building Debian's sources" OFF)
set(QOR_DEPS_DIR "${CMAKE_SOURCE_DIR}/build/deps" CACHE PATH "Where the Debian sources are unpacked")

if(QOR_SYSTEM_LIBRARIES)
    include(ThirdPartyPackages)
    return()
endif()

# Unpacks Debian source packages once; _<package> is the folder of each.
macro(qor_debian_sources)
    set(_missing "")
    foreach(_package ${ARGN})
        set(_${_package} "${QOR_DEPS_DIR}/${_package}")
        if(NOT EXISTS "${_${_package}}/.version")
            list(APPEND _missing ${_package})
        endif()
    endforeach()
    if(_missing)
        execute_process(COMMAND "${CMAKE_SOURCE_DIR}/cmake/debian-source" "${QOR_DEPS_DIR}" ${_missing}
                        RESULT_VARIABLE _rc)
        if(_rc)
            message(FATAL_ERROR "Not all of the Debian source packages ${_missing} could be had (see above).")
        endif()
    endif()
    foreach(_package ${ARGN})
        file(STRINGS "${_${_package}}/.version" _version LIMIT_COUNT 1)
        message(STATUS "${_package} ${_version} (Debian source)")
    endforeach()
endmacro()

set(_packages pugixml sqlite3 zlib)
if(QOR_BUILD_BENCHMARKS)
    list(APPEND _packages benchmark)
endif()
qor_debian_sources(${_packages})

# --- pugixml
add_library(qor_pugixml STATIC "${_pugixml}/src/pugixml.cpp")
target_include_directories(qor_pugixml SYSTEM PUBLIC "${_pugixml}/src")
add_library(qor::pugixml ALIAS qor_pugixml)

# --- SQLite: the amalgamation is generated from the source tree with the build machine's compiler and Tcl
set(_amalgamation "${QOR_DEPS_DIR}/sqlite3-amalgamation")
if(NOT EXISTS "${_amalgamation}/sqlite3.c")
    message(STATUS "Generating the SQLite amalgamation")
    execute_process(COMMAND "${CMAKE_SOURCE_DIR}/cmake/sqlite-amalgamation" "${_sqlite3}" "${_amalgamation}"
                    RESULT_VARIABLE _rc)
    if(_rc)
        message(FATAL_ERROR "The SQLite amalgamation could not be generated: are the packages tcl, gcc and make installed?")
    endif()
endif()
add_library(qor_sqlite3 STATIC "${_amalgamation}/sqlite3.c")
target_include_directories(qor_sqlite3 SYSTEM PUBLIC "${_amalgamation}")
target_compile_definitions(qor_sqlite3 PRIVATE SQLITE_THREADSAFE=1 SQLITE_OMIT_LOAD_EXTENSION SQLITE_DQS=0
                           SQLITE_DEFAULT_FOREIGN_KEYS=1)
target_compile_options(qor_sqlite3 PRIVATE -w)
add_library(qor::sqlite3 ALIAS qor_sqlite3)

# --- zlib (Debian has it for mingw-w64) and minizip (from zlib's sources)
find_library(QOR_ZLIB libz.a PATHS /usr/x86_64-w64-mingw32/lib REQUIRED)
add_library(qor_zlib STATIC IMPORTED GLOBAL)
set_target_properties(qor_zlib PROPERTIES IMPORTED_LOCATION "${QOR_ZLIB}")
add_library(qor::zlib ALIAS qor_zlib)

file(MAKE_DIRECTORY "${CMAKE_BINARY_DIR}/include/minizip")
foreach(_file ioapi.h iowin32.h unzip.h zip.h crypt.h)
    configure_file("${_zlib}/contrib/minizip/${_file}" "${CMAKE_BINARY_DIR}/include/minizip/${_file}" COPYONLY)
endforeach()
add_library(qor_minizip STATIC "${_zlib}/contrib/minizip/ioapi.c" "${_zlib}/contrib/minizip/iowin32.c"
            "${_zlib}/contrib/minizip/unzip.c" "${_zlib}/contrib/minizip/zip.c")
target_include_directories(qor_minizip SYSTEM PUBLIC "${CMAKE_BINARY_DIR}/include")
target_compile_definitions(qor_minizip PRIVATE NOCRYPT NOUNCRYPT)
target_compile_options(qor_minizip PRIVATE -w)
target_link_libraries(qor_minizip PUBLIC qor_zlib)
add_library(qor::minizip ALIAS qor_minizip)

# --- GoogleTest and Google Benchmark
if(QOR_BUILD_TESTS)
    if(NOT EXISTS /usr/src/googletest/CMakeLists.txt)
        message(FATAL_ERROR "/usr/src/googletest is missing: install the package googletest.")
    endif()
    set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
    set(BUILD_GMOCK OFF CACHE BOOL "" FORCE)
    add_subdirectory(/usr/src/googletest "${CMAKE_BINARY_DIR}/googletest" EXCLUDE_FROM_ALL SYSTEM)
endif()
if(QOR_BUILD_BENCHMARKS)
    file(GLOB _sources "${_benchmark}/src/*.cc")
    list(FILTER _sources EXCLUDE REGEX "benchmark_main\\.cc$")
    add_library(qor_benchmark STATIC EXCLUDE_FROM_ALL ${_sources})
    target_include_directories(qor_benchmark SYSTEM PUBLIC "${_benchmark}/include")
    target_compile_definitions(qor_benchmark PUBLIC BENCHMARK_STATIC_DEFINE PRIVATE HAVE_STD_REGEX NDEBUG)
    # Its sources call the narrow Windows functions by their short names.
    target_compile_options(qor_benchmark PRIVATE -w -UUNICODE -U_UNICODE)
    target_link_libraries(qor_benchmark PUBLIC shlwapi)
    add_library(qor::benchmark ALIAS qor_benchmark)
endif()
