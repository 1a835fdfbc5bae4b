# What the SDK holds: DLLs with their run-time DLLs, import libraries, headers, language data, the console, the CMake
# package and a sample host.
include_guard(GLOBAL)
include(CMakePackageConfigHelpers)

set(_package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/QorUI")

install(TARGETS afx afx_main QorPub QorApi QorUI
        EXPORT QorUITargets
        RUNTIME DESTINATION bin
        ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}"
        INCLUDES DESTINATION include)
install(EXPORT QorUITargets NAMESPACE QorUI:: DESTINATION "${_package_dir}")
install(TARGETS QorConsole RUNTIME DESTINATION bin)
foreach(_dll IN LISTS QOR_RUNTIME_DLLS)
    cmake_path(GET _dll FILENAME _name)
    install(FILES "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${_name}" DESTINATION bin)
endforeach()

install(DIRECTORY afx/include/ DESTINATION include/afx FILES_MATCHING PATTERN "*.h")

# A header is public when its library's umbrella header reaches it.
set(_reached QorUI/QorUI.h QorPub/QorPub.h QorApi/QorApi.h)
set(_headers "")
while(_reached)
    list(POP_FRONT _reached _header)
    list(APPEND _headers "${_header}")
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${_header}")
    cmake_path(GET _header PARENT_PATH _dir)
    install(FILES "${_header}" DESTINATION "include/${_dir}")
    file(STRINGS "${_header}" _includes REGEX "^#include (<Qor(UI|Pub|Api)/|\")")
    foreach(_include IN LISTS _includes)
        string(REGEX REPLACE "^#include [<\"]([^>\"]+)[>\"].*" "\\1" _name "${_include}")
        if(_include MATCHES "\"")
            set(_name "${_dir}/${_name}")
        endif()
        if(NOT _name IN_LIST _headers AND NOT _name IN_LIST _reached)
            list(APPEND _reached "${_name}")
        endif()
    endforeach()
endwhile()

install(DIRECTORY lang/ DESTINATION bin/lang FILES_MATCHING PATTERN "*.xml")
install(DIRECTORY docs/sample/ DESTINATION sample)
install(FILES cmake/toolchain-mingw64.cmake DESTINATION cmake)
install(FILES docs/sdk.md DESTINATION . RENAME README.md)

# The licences of what the SDK holds of others, as the Debian packages that it comes from state them (docs/sdk.md).
function(qor_install_licence name file)
    install(CODE "if(NOT EXISTS \"${file}\")
        message(FATAL_ERROR \"The SDK needs the licence of ${name}, and ${file} is missing.\")
    endif()")
    install(FILES "${file}" DESTINATION licenses RENAME "${name}.txt")
endfunction()

if(NOT QOR_SYSTEM_LIBRARIES)
    qor_install_licence(pugixml "${_pugixml}/debian/copyright")
    qor_install_licence(sqlite3 "${_sqlite}/debian/copyright")
    qor_install_licence(minizip "${_zlib}/debian/copyright")
    qor_install_licence(zlib /usr/share/doc/libz-mingw-w64-dev/copyright)
    qor_install_licence(gcc /usr/share/doc/gcc-mingw-w64-x86-64-posix-runtime/copyright)
    qor_install_licence(mingw-w64 /usr/share/doc/mingw-w64-x86-64-dev/copyright)
    qor_install_licence(GPL-3 /usr/share/common-licenses/GPL-3)
endif()

configure_package_config_file(cmake/QorUIConfig.cmake.in "${CMAKE_BINARY_DIR}/QorUIConfig.cmake"
                              INSTALL_DESTINATION "${_package_dir}" PATH_VARS CMAKE_INSTALL_BINDIR)
write_basic_package_version_file("${CMAKE_BINARY_DIR}/QorUIConfigVersion.cmake" COMPATIBILITY SameMajorVersion)
install(FILES "${CMAKE_BINARY_DIR}/QorUIConfig.cmake" "${CMAKE_BINARY_DIR}/QorUIConfigVersion.cmake"
        DESTINATION "${_package_dir}")
