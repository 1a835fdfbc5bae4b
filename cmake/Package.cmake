# What the SDK holds: DLLs with their run-time DLLs, import libraries, headers, language data, the console, the CMake
# package and a sample host.
include_guard(GLOBAL)
include(CMakePackageConfigHelpers)

set(_package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/QorUI")

install(TARGETS afx afx_main QorPub QorApi QorUI
        EXPORT QorUITargets
        RUNTIME DESTINATION bin
        ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}"
        INCLUDES DESTINATION include include/afx)
install(EXPORT QorUITargets NAMESPACE QorUI:: DESTINATION "${_package_dir}")
install(TARGETS QorConsole RUNTIME DESTINATION bin)
foreach(_dll IN LISTS QOR_RUNTIME_DLLS)
    cmake_path(GET _dll FILENAME _name)
    install(FILES "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${_name}" DESTINATION bin)
endforeach()

install(DIRECTORY afx/include/ DESTINATION include/afx FILES_MATCHING PATTERN "*.h")
foreach(_library QorPub QorApi)
    install(DIRECTORY ${_library}/ DESTINATION include/${_library} FILES_MATCHING PATTERN "*.h")
endforeach()

# A header of QorUI is public when it exports something, or is only definitions.
file(GLOB_RECURSE _headers RELATIVE "${CMAKE_CURRENT_SOURCE_DIR}" CONFIGURE_DEPENDS QorUI/*.h)
foreach(_header IN LISTS _headers)
    file(STRINGS "${_header}" _exports REGEX "QORUI_API")
    if(_exports OR _header MATCHES "/(QorUI|Messages)\\.h$")
        get_filename_component(_dir "${_header}" DIRECTORY)
        install(FILES "${_header}" DESTINATION "include/${_dir}")
    endif()
endforeach()

install(DIRECTORY lang/ DESTINATION bin/lang FILES_MATCHING PATTERN "*.xml")
install(DIRECTORY docs/sample/ DESTINATION sample)
install(FILES README.md DESTINATION .)

configure_package_config_file(cmake/QorUIConfig.cmake.in "${CMAKE_BINARY_DIR}/QorUIConfig.cmake"
                              INSTALL_DESTINATION "${_package_dir}")
write_basic_package_version_file("${CMAKE_BINARY_DIR}/QorUIConfigVersion.cmake" COMPATIBILITY SameMajorVersion)
install(FILES "${CMAKE_BINARY_DIR}/QorUIConfig.cmake" "${CMAKE_BINARY_DIR}/QorUIConfigVersion.cmake"
        DESTINATION "${_package_dir}")
