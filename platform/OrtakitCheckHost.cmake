# cmake -D NM=... -D MODULE=FILE -D "HOST=FILE;..." -P OrtakitCheckHost.cmake
#
# Names everything of the platform that the module leaves undefined and none of the host's files defines, and fails when
# there is something: the system's loader would name the first of them only.
cmake_minimum_required(VERSION 3.25)

# names(RESULT KIND FILE): the symbols of the kind that the file shows to the loader, in the notation of the language.
function(names result kind file)
    execute_process(COMMAND "${NM}" -D -C ${kind} "${file}" OUTPUT_VARIABLE listing COMMAND_ERROR_IS_FATAL ANY)
    string(REPLACE "\n" ";" lines "${listing}")
    set(found "")
    foreach(line IN LISTS lines)
        if(line MATCHES " [A-Za-z] (.+)$")
            list(APPEND found "${CMAKE_MATCH_1}")
        endif()
    endforeach()
    set(${result} "${found}" PARENT_SCOPE)
endfunction()

set(offered "")
foreach(file IN LISTS HOST)
    names(defined --defined-only "${file}")
    list(APPEND offered ${defined})
endforeach()
names(missing --undefined-only "${MODULE}")
list(FILTER missing INCLUDE REGEX "^((typeinfo|vtable) for )?(Od|CKv|RText|odrx|oded|GetKv|ACTIVE_DOCUMENT)")
list(LENGTH missing asked)
list(REMOVE_ITEM missing ${offered})

if(missing)
    list(LENGTH missing count)
    list(JOIN missing "\n    " text)
    message(FATAL_ERROR "Of ${asked} symbols that ${MODULE} needs, the host does not define ${count}:\n    ${text}")
endif()
message(STATUS "The host defines all ${asked} symbols that the module needs.")
