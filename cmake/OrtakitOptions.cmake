# What every target of the project is built with.
option(ORTAKIT_TESTS "Build the tests" ON)
option(ORTAKIT_BENCH "Build the benchmarks" OFF)
option(ORTAKIT_FUZZ "Build the fuzz targets (Clang only)" OFF)
set(ORTAKIT_SANITIZE "" CACHE STRING "Sanitizers, as -fsanitize= takes them")

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTOUIC ON)
set(CMAKE_AUTORCC ON)

set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/archive")

# Precompiled headers and ccache get on only when ccache may ignore macros of the header.
find_program(ORTAKIT_CCACHE ccache)
if(ORTAKIT_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER
        "${CMAKE_COMMAND};-E;env;CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime;${ORTAKIT_CCACHE}")
endif()
find_program(ORTAKIT_MOLD mold)
if(ORTAKIT_MOLD)
    add_link_options(-fuse-ld=mold)
endif()

add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # GCC 12 reports these in the standard library's and Qt's own inlined code, more so under the sanitizers.
    add_compile_options(-Wno-restrict -Wno-maybe-uninitialized -Wno-stringop-overflow -Wno-array-bounds
                        -Wno-dangling-pointer -Wno-free-nonheap-object -fpch-preprocess)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    # Part of the language since C++14, and off unless asked for before Clang 19.
    add_compile_options(-fsized-deallocation)
endif()
add_compile_definitions(QT_NO_CAST_FROM_ASCII QT_NO_FOREACH)

if(ORTAKIT_SANITIZE)
    add_compile_options(-fsanitize=${ORTAKIT_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
    add_link_options(-fsanitize=${ORTAKIT_SANITIZE})
    if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
        # What Clang 14 puts before each function to check its type by, it cannot assemble for coroutines.
        add_compile_options(-fno-sanitize=function)
    endif()
endif()
