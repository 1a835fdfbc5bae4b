# What the SDK holds: DLLs with their run-time DLLs, import libraries, headers, language data, the console, the CMake
# package and a sample host.
include_guard(GLOBAL)
include(CMakePackageConfigHelpers)

set(_package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/QorUI")

install(TARGETS afx afx_main
        EXPORT QorUITargets
        RUNTIME DESTINATION bin
        ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}"
        FILE_SET HEADERS DESTINATION include/afx)
install(TARGETS QorPub QorApi QorUI
        EXPORT QorUITargets
        RUNTIME DESTINATION bin
        ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}"
        FILE_SET HEADERS DESTINATION include)
install(EXPORT QorUITargets NAMESPACE QorUI:: DESTINATION "${_package_dir}")
install(TARGETS QorConsole RUNTIME DESTINATION bin)
foreach(_dll IN LISTS QOR_RUNTIME_DLLS)
    cmake_path(GET _dll FILENAME _name)
    install(FILES "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${_name}" DESTINATION bin)
endforeach()

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
    qor_install_licence(sqlite3 "${_sqlite3}/debian/copyright")
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
