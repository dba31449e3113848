# ortakit_room(NAME [PCH std|core|widgets] SOURCES ... LINK ...)
#
# One folder of the house as a static library that shared libraries and tests can take in. Everything is included by
# its path from the top of the project ("state/DialogState.h"), which is what scripts/check reads the rules from.
function(ortakit_room name)
    cmake_parse_arguments(ROOM "" "PCH" "SOURCES;LINK" ${ARGN})
    add_library(${name} STATIC ${ROOM_SOURCES})
    target_include_directories(${name} PUBLIC "${CMAKE_SOURCE_DIR}")
    target_link_libraries(${name} PUBLIC ${ROOM_LINK})
    ortakit_pch(${name} "${ROOM_PCH}")
endfunction()

# ortakit_pch(TARGET std|core|widgets): the headers nearly every file of such a target includes.
function(ortakit_pch target kind)
    if(kind STREQUAL "std")
        target_precompile_headers(${target} PRIVATE
            <algorithm> <cmath> <cstdint> <functional> <memory> <string> <string_view> <unordered_map> <vector>)
    elseif(kind STREQUAL "core")
        target_precompile_headers(${target} PRIVATE <algorithm> <cmath> <memory> <vector> <QtCore>)
    elseif(kind STREQUAL "widgets")
        target_precompile_headers(${target} PRIVATE <algorithm> <cmath> <memory> <vector> <QtWidgets>)
    endif()
endfunction()

# ortakit_test(NAME [PCH kind] SOURCES ... LINK ...)
#
# One test program a room, registered with CTest as a whole: a room's tests share start-up cost and a fixture.
# Widgets are drawn off screen and no test reads or writes the settings of the person who runs it.
function(ortakit_test name)
    cmake_parse_arguments(TEST "" "PCH" "SOURCES;LINK" ${ARGN})
    find_package(GTest REQUIRED)
    add_executable(${name} ${TEST_SOURCES})
    target_include_directories(${name} PRIVATE "${CMAKE_SOURCE_DIR}")
    target_link_libraries(${name} PRIVATE ${TEST_LINK} GTest::gtest GTest::gmock)
    ortakit_pch(${name} "${TEST_PCH}")
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT 300 ENVIRONMENT
        "QT_QPA_PLATFORM=offscreen;XDG_CONFIG_HOME=${CMAKE_BINARY_DIR}/test-home/config;ORTAKIT_SOURCE=${CMAKE_SOURCE_DIR};ORTAKIT_BUILD=${CMAKE_BINARY_DIR}")
endfunction()
