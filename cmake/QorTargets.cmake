# The kinds of target this project has: DLLs, programs, test programs, benchmarks.
include_guard(GLOBAL)

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
set(CMAKE_SHARED_LIBRARY_PREFIX "")
set(CMAKE_SHARED_MODULE_PREFIX "")

# winedbg and addr2line read line tables up to DWARF 4.
add_compile_options("$<$<COMPILE_LANGUAGE:C,CXX>:-gdwarf-4>")
if(NOT CMAKE_BUILD_TYPE STREQUAL "Debug")
    add_compile_options("$<$<COMPILE_LANGUAGE:C,CXX>:-g1>")
endif()
# What the headers are read with, here (libraries fetched for the build included) and in the programs that use the SDK.
set(QOR_API_DEFINITIONS UNICODE _UNICODE STRICT WINVER=0x0601 _WIN32_WINNT=0x0601 _WIN32_IE=0x0800)
add_compile_definitions(${QOR_API_DEFINITIONS})
add_compile_definitions("$<$<CONFIG:Debug>:_DEBUG>")
# Traces and messages must not hold the paths of the machine that built them.
add_compile_options("$<$<COMPILE_LANGUAGE:C,CXX>:-fmacro-prefix-map=${CMAKE_SOURCE_DIR}/=>")

# The options of our own code; libraries fetched for the build are compiled without them.
add_library(qor_options INTERFACE)
target_compile_options(qor_options INTERFACE "$<$<COMPILE_LANGUAGE:CXX>:-Wall;-Wextra;-Werror>")
target_include_directories(qor_options INTERFACE "$<BUILD_INTERFACE:${CMAKE_SOURCE_DIR}>")
set_target_properties(qor_options PROPERTIES EXPORT_NAME Options)

# windres: sources are UTF-8.
set(CMAKE_RC_FLAGS "${CMAKE_RC_FLAGS} -c 65001")

# The compiler's run-time DLLs, shared by every program and DLL of ours so that exceptions and type
# information cross their borders.
function(_qor_find_runtime out)
    set(found "")
    foreach(dll libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
        execute_process(COMMAND "${CMAKE_CXX_COMPILER}" -print-file-name=${dll} OUTPUT_VARIABLE path
                        OUTPUT_STRIP_TRAILING_WHITESPACE)
        if(NOT EXISTS "${path}")
            find_file(path_${dll} ${dll} PATHS /usr/x86_64-w64-mingw32/lib NO_CMAKE_FIND_ROOT_PATH)
            set(path "${path_${dll}}")
        endif()
        if(NOT EXISTS "${path}")
            message(FATAL_ERROR "The compiler's run-time library ${dll} was not found: "
                                "is g++-mingw-w64-x86-64-posix installed?")
        endif()
        list(APPEND found "${path}")
    endforeach()
    set(${out} "${found}" PARENT_SCOPE)
endfunction()
if(NOT QOR_RUNTIME_DLLS)
    _qor_find_runtime(_runtime)
    set(QOR_RUNTIME_DLLS "${_runtime}" CACHE INTERNAL "Run-time DLLs of the compiler")
endif()

# Sections that begin at page boundaries of the file are mapped and read when they are touched; others are read whole at
# load, debug information included. That of the compiler's DLLs, five times their code, is left out besides.
set(_page_alignment 4096)
add_link_options("LINKER:--file-alignment=${_page_alignment}")
file(MAKE_DIRECTORY "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}")
foreach(_dll IN LISTS QOR_RUNTIME_DLLS)
    cmake_path(GET _dll FILENAME _name)
    set(_copy "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${_name}")
    if("${_dll}" IS_NEWER_THAN "${_copy}")
        execute_process(COMMAND "${CMAKE_OBJCOPY}" --strip-debug --file-alignment ${_page_alignment} "${_dll}" "${_copy}"
                        COMMAND_ERROR_IS_FATAL ANY)
    endif()
endforeach()

macro(_qor_parse)
    cmake_parse_arguments(ARG "CORE;GUI;X11;CONSOLE" "RC;TIMEOUT" "SOURCES;LIBS;PRIVATE_LIBS;DEFINES;DEPENDS" ${ARGN})
    if(ARG_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "Unknown arguments: ${ARG_UNPARSED_ARGUMENTS}")
    endif()
endmacro()

function(_qor_finish name)
    cmake_parse_arguments(ARG "" "RC" "LIBS;DEFINES" ${ARGN})
    if(ARG_RC)
        target_sources(${name} PRIVATE "${ARG_RC}")
        # The resource compiler does not report what its script includes.
        get_filename_component(dir "${ARG_RC}" DIRECTORY)
        file(GLOB_RECURSE parts CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/${dir}/*.bmp"
             "${CMAKE_CURRENT_SOURCE_DIR}/${dir}/*.png" "${CMAKE_CURRENT_SOURCE_DIR}/${dir}/*.avi"
             "${CMAKE_CURRENT_SOURCE_DIR}/${dir}/*.ico" "${CMAKE_CURRENT_SOURCE_DIR}/${dir}/*.manifest"
             "${CMAKE_CURRENT_SOURCE_DIR}/${dir}/*.h" "${CMAKE_CURRENT_SOURCE_DIR}/${dir}/*.rc")
        set_property(SOURCE "${ARG_RC}" APPEND PROPERTY OBJECT_DEPENDS "${parts}" "${QOR_VERSION_DIR}/QorVersion.h")
        set_property(SOURCE "${ARG_RC}" APPEND PROPERTY INCLUDE_DIRECTORIES "${QOR_VERSION_DIR}")
    endif()
    target_link_libraries(${name} PUBLIC ${ARG_LIBS} PRIVATE qor_options)
    if(ARG_DEFINES)
        target_compile_definitions(${name} PRIVATE ${ARG_DEFINES})
    endif()
endfunction()

# qor_dll(<name> SOURCES ... LIBS ... [PRIVATE_LIBS ...] [RC file.rc] [DEFINES ...] [CORE])
# With CORE the sources become the static library <name>Core, of whose objects the DLL is made: tests of what the DLL does
# not export link it behind the DLL.
function(qor_dll name)
    _qor_parse(${ARGN})
    set(code ${name})
    if(ARG_CORE)
        set(code ${name}Core)
        add_library(${code} STATIC ${ARG_SOURCES})
        _qor_finish(${code} LIBS ${ARG_LIBS} DEFINES ${ARG_DEFINES})
        target_link_libraries(${code} PRIVATE ${ARG_PRIVATE_LIBS})
        add_library(${name} SHARED $<TARGET_OBJECTS:${code}>)
        set_target_properties(${name} PROPERTIES LINKER_LANGUAGE CXX)
    else()
        add_library(${name} SHARED ${ARG_SOURCES})
    endif()
    _qor_finish(${name} RC "${ARG_RC}" LIBS ${ARG_LIBS} DEFINES ${ARG_DEFINES})
    target_link_libraries(${name} PRIVATE ${ARG_PRIVATE_LIBS})
    set_target_properties(${name} PROPERTIES PREFIX "" IMPORT_PREFIX "lib")
    set_target_properties(${code} PROPERTIES CXX_VISIBILITY_PRESET hidden)
    foreach(target ${name} ${code})
        target_include_directories(${target} PUBLIC "$<BUILD_INTERFACE:${CMAKE_SOURCE_DIR}>")
    endforeach()
endfunction()

# qor_exe(<name> SOURCES ... LIBS ... [RC file.rc] [DEFINES ...] [GUI])
function(qor_exe name)
    _qor_parse(${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    _qor_finish(${name} RC "${ARG_RC}" LIBS ${ARG_LIBS} DEFINES ${ARG_DEFINES})
    if(ARG_GUI)
        set_target_properties(${name} PROPERTIES WIN32_EXECUTABLE ON)
    endif()
    target_link_options(${name} PRIVATE -municode)
    target_compile_options(${name} PRIVATE -municode)
endfunction()

# The precompiled header of a test program is that of what it links: the library, the framework, or neither.
# tests/support has them. They save time and bring nothing in that a source may leave out: clang-tidy reads without them.
function(_qor_test_precompile name)
    if("QorUI" IN_LIST ARGN)
        set(from qor_test_headers_ui)
    elseif("afx" IN_LIST ARGN OR "QorPub" IN_LIST ARGN OR "QorApi" IN_LIST ARGN)
        set(from qor_test_headers_afx)
    else()
        set(from qor_test_support)
    endif()
    target_precompile_headers(${name} REUSE_FROM ${from})
endfunction()

# qor_test(<name> SOURCES ... LIBS ... [RC file.rc] [DEFINES ...] [DEPENDS targets] [X11] [TIMEOUT seconds])
# A GoogleTest program that CTest runs under Wine: on the null graphics driver, with X11 on a virtual display.
function(qor_test name)
    _qor_parse(${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    _qor_finish(${name} RC "${ARG_RC}" LIBS ${ARG_LIBS} qor_test_support DEFINES ${ARG_DEFINES})
    target_link_options(${name} PRIVATE -municode)
    _qor_test_precompile(${name} ${ARG_LIBS})
    if(ARG_DEPENDS)
        add_dependencies(${name} ${ARG_DEPENDS})
    endif()
    add_test(NAME ${name} COMMAND ${name})
    if(NOT ARG_TIMEOUT)
        set(ARG_TIMEOUT 300)
    endif()
    math(EXPR limit "${ARG_TIMEOUT} + 120") # the report of a hang takes its time
    set(env "QOR_TIMEOUT=${ARG_TIMEOUT}" "QOR_WINEPREFIX=${QOR_TEST_PREFIX}")
    if(ARG_X11)
        set_tests_properties(${name} PROPERTIES LABELS x11)
        list(APPEND env "QOR_X11=1")
    endif()
    # Programs that run at the same time get a Wine prefix each, and with it a desktop of their own.
    set_tests_properties(${name} PROPERTIES TIMEOUT ${limit} ENVIRONMENT "${env}")
endfunction()

# qor_bench(<name> SOURCES ... LIBS ...)
function(qor_bench name)
    _qor_parse(${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    _qor_finish(${name} RC "${ARG_RC}" LIBS ${ARG_LIBS} qor::benchmark DEFINES ${ARG_DEFINES})
endfunction()
set(QOR_TEST_PREFIX "${CMAKE_BINARY_DIR}/wine" CACHE PATH "Wine prefix of the test run")
