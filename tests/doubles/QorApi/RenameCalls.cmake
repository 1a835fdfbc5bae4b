# Writes a copy of the library's core in which each exported function is called Real<name>, as the double calls it. Before
# that it compares what the library exports with what the double stands in for.
#   cmake -DNM=... -DOBJDUMP=... -DOBJCOPY=... -DLIBRARY=<dll> -DCORE=<archive> -DCALLS=<object> -DRENAMED=<archive> -P <this>

function(run out)
    execute_process(COMMAND ${ARGN} OUTPUT_VARIABLE text COMMAND_ERROR_IS_FATAL ANY)
    set(${out} "${text}" PARENT_SCOPE)
endfunction()

# The mangled names that a DLL exports.
function(read_exports dll out)
    run(text "${OBJDUMP}" -p "${dll}")
    string(REGEX REPLACE ".*\\[Ordinal/Name Pointer\\] Table" "" text "${text}")
    string(REGEX REPLACE "\n\n.*" "" text "${text}")
    string(REGEX MATCHALL "_Z[A-Za-z0-9_]+" names "${text}")
    set(${out} "${names}" PARENT_SCOPE)
endfunction()

# What an object calls as Real..., as the library names it, and the pairs "<name in the core> <name that the double calls>".
function(read_calls object names_out pairs_out)
    run(text "${NM}" --undefined-only "${object}")
    string(REGEX MATCHALL "_Z[0-9]+Real[A-Za-z0-9_]+" called "${text}")
    set(names "")
    set(pairs "")
    foreach(real IN LISTS called)
        string(REGEX MATCH "^_Z([0-9]+)Real(.*)$" _ "${real}")
        math(EXPR length "${CMAKE_MATCH_1} - 4")
        list(APPEND names "_Z${length}${CMAKE_MATCH_2}")
        list(APPEND pairs "_Z${length}${CMAKE_MATCH_2} ${real}")
    endforeach()
    set(${names_out} "${names}" PARENT_SCOPE)
    set(${pairs_out} "${pairs}" PARENT_SCOPE)
endfunction()

function(refuse_if_any names what)
    if(names)
        list(JOIN names "\n  " text)
        message(FATAL_ERROR "${what}:\n  ${text}")
    endif()
endfunction()

read_exports("${LIBRARY}" exported)
read_calls("${CALLS}" doubled pairs)
set(missing ${exported})
list(REMOVE_ITEM missing ${doubled})
refuse_if_any("${missing}" "QorApi.dll exports what its double (QorApiDouble.cpp) does not stand in for")
set(surplus ${doubled})
list(REMOVE_ITEM surplus ${exported})
refuse_if_any("${surplus}" "The double of QorApi.dll stands in for what the library does not export")

list(JOIN pairs "\n" text)
file(WRITE "${RENAMED}.names" "${text}\n")
run(_ "${OBJCOPY}" "--redefine-syms=${RENAMED}.names" "${CORE}" "${RENAMED}")
