# Libraries of the system that are needed late are loaded at the first call into them, so that attaching ours stays quick.
include_guard(GLOBAL)

find_program(QOR_DLLTOOL NAMES x86_64-w64-mingw32-dlltool dlltool REQUIRED)

# qor_delay_load(<target> <dll without extension> <function>...)
# The functions are those that the target calls; a new one that is not named here is bound at load as usual.
function(qor_delay_load target dll)
    set(name "delay_${target}_${dll}")
    set(stem "${CMAKE_CURRENT_BINARY_DIR}/${name}")
    list(JOIN ARGN "\n" functions)
    file(CONFIGURE OUTPUT "${stem}.def" CONTENT "LIBRARY ${dll}.dll\nEXPORTS\n${functions}\n")
    # In the folder itself: the tool makes names of symbols from the path that it is given.
    add_custom_command(OUTPUT "${stem}.a" DEPENDS "${stem}.def" WORKING_DIRECTORY "${CMAKE_CURRENT_BINARY_DIR}" VERBATIM
                       COMMAND "${QOR_DLLTOOL}" -m i386:x86-64 -d ${name}.def -D ${dll}.dll -y ${name}.a)
    add_custom_target(${name} DEPENDS "${stem}.a")
    add_dependencies(${target} ${name})
    target_link_libraries(${target} PRIVATE "$<BUILD_INTERFACE:${stem}.a>" "$<BUILD_INTERFACE:delayimp>")
endfunction()
