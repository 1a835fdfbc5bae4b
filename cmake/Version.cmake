# The version stands in the project command. The resource scripts take it from a header; what no header reaches must say
# the same.
include_guard(GLOBAL)

set(QOR_VERSION_DIR "${CMAKE_BINARY_DIR}/version")
configure_file(cmake/QorVersion.h.in "${QOR_VERSION_DIR}/QorVersion.h" @ONLY)

function(_qor_check_version file pattern)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${file}")
    file(READ "${file}" text)
    string(REPLACE "." "\\." version "${PROJECT_VERSION}")
    string(REPLACE "@" "${version}" pattern "${pattern}")
    if(NOT text MATCHES "${pattern}")
        message(FATAL_ERROR "${file} does not have the project's version, ${PROJECT_VERSION}.")
    endif()
endfunction()

_qor_check_version(vcpkg.json "\"version\": \"@\"")
foreach(_manifest QorUI/res/QorUI.manifest QorUI/res/app.manifest)
    _qor_check_version(${_manifest} "<assemblyIdentity type=\"win32\" name=\"Qor[^>]* version=\"@\\.0\"")
endforeach()
