# ortakit_room(NAME [PCH std|core|widgets] SOURCES ... LINK ...)
#
# One folder of the house as a static library that shared libraries and tests can take in. Everything is included by
# its path from the top of the project ("state/exchange/DialogState.h"), which is what scripts/check reads the rules from.
function(ortakit_room name)
    cmake_parse_arguments(ROOM "" "PCH" "SOURCES;LINK" ${ARGN})
    add_library(${name} STATIC ${ROOM_SOURCES})
    target_include_directories(${name} PUBLIC "${CMAKE_SOURCE_DIR}")
    target_link_libraries(${name} PUBLIC ${ROOM_LINK})
    ortakit_pch(${name} "${ROOM_PCH}")
endfunction()

# ortakit_host_room(NAME SOURCES ...)
#
# A room that is compiled by itself and becomes a part of the host's one library: what is added to it leaves the batches
# of the other rooms as they are.
function(ortakit_host_room name)
    cmake_parse_arguments(ROOM "" "" "SOURCES" ${ARGN})
    add_library(${name} OBJECT ${ROOM_SOURCES})
    target_include_directories(${name} PRIVATE "${CMAKE_SOURCE_DIR}")
    target_link_libraries(${name} PRIVATE Qt6::Widgets)
    target_link_libraries(ortakit_host PRIVATE ${name})
    ortakit_pch(${name} widgets)
endfunction()

# What a third of the files with Qt include. The umbrella headers take twice as long to precompile and to load.
set(ORTAKIT_CORE_HEADERS
    <QByteArray> <QByteArrayView> <QCoreApplication> <QDir> <QFile> <QFileInfo> <QHash> <QIODevice> <QList> <QMap>
    <QObject> <QSet> <QString> <QStringList> <QStringView> <QVariant>)
set(ORTAKIT_WIDGET_HEADERS
    <QAbstractButton> <QApplication> <QCheckBox> <QComboBox> <QDialog> <QEvent> <QHeaderView> <QKeyEvent> <QLabel>
    <QLineEdit> <QPainter> <QPointer> <QPushButton> <QTableWidget> <QTimer> <QWidget>)

# ortakit_pch(TARGET KIND): the headers nearly every file of such a target includes, precompiled once for all targets of
# the kind: std, core, widgets; with "_test" behind for test programs. Being half a minute of a clean build each where
# every target makes its own, they are shared.
function(ortakit_pch target kind)
    if(NOT kind)
        return()
    endif()
    set(holder ortakit_pch_${kind})
    if(NOT TARGET ${holder})
        set(headers <algorithm> <cmath> <cstdint> <functional> <memory> <string> <string_view> <unordered_map> <vector>)
        set(libraries "")
        if(kind MATCHES "core")
            list(APPEND headers ${ORTAKIT_CORE_HEADERS})
            list(APPEND libraries Qt6::Core)
        elseif(kind MATCHES "widgets")
            list(APPEND headers ${ORTAKIT_CORE_HEADERS} ${ORTAKIT_WIDGET_HEADERS})
            list(APPEND libraries Qt6::Widgets)
        endif()
        if(kind MATCHES "_test$")
            list(APPEND headers <gtest/gtest.h>)
            list(APPEND libraries GTest::gtest)
        endif()
        # A library of its own, since its options must be those of whoever uses its header.
        file(WRITE "${CMAKE_BINARY_DIR}/pch/${kind}.cpp" "// Holds the precompiled header.\n")
        add_library(${holder} OBJECT "${CMAKE_BINARY_DIR}/pch/${kind}.cpp")
        set_target_properties(${holder} PROPERTIES AUTOMOC OFF AUTOUIC OFF AUTORCC OFF)
        target_link_libraries(${holder} PRIVATE ${libraries})
        target_precompile_headers(${holder} PRIVATE ${headers})
        if(kind MATCHES "_test$")
            target_compile_options(${holder} PRIVATE -O0)
        endif()
    endif()
    # Programs without Qt would be compiled as -fPIE, which does not go with a header compiled for libraries.
    target_compile_options(${target} PRIVATE -fPIC)
    if(kind MATCHES "_test$")
        # What a test does itself is little; optimising GoogleTest's and Qt's headers in each file is not.
        target_compile_options(${target} PRIVATE -O0)
    endif()
    target_precompile_headers(${target} REUSE_FROM ${holder})
endfunction()

# ortakit_test(NAME [PCH kind] SOURCES ... LINK ...)
#
# One test program a room, registered with CTest as a whole: a room's tests share start-up cost and a fixture.
# Widgets are drawn off screen, and no test reads or writes the settings of the person who runs it or speaks another
# language than English.
function(ortakit_test name)
    cmake_parse_arguments(TEST "" "PCH" "SOURCES;LINK" ${ARGN})
    find_package(GTest REQUIRED)
    add_executable(${name} ${TEST_SOURCES})
    target_include_directories(${name} PRIVATE "${CMAKE_SOURCE_DIR}")
    target_link_libraries(${name} PRIVATE ${TEST_LINK} GTest::gtest GTest::gmock)
    if(TEST_PCH)
        ortakit_pch(${name} ${TEST_PCH}_test)
    endif()
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT 900 ENVIRONMENT
        "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;LANGUAGE=;ORTAKIT_LANGUAGE=;XDG_CONFIG_HOME=${CMAKE_BINARY_DIR}/test-home/config;ORTAKIT_SOURCE=${CMAKE_SOURCE_DIR};ORTAKIT_BUILD=${CMAKE_BINARY_DIR}")
endfunction()
