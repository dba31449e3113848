# What every target of the project is built with.
option(ORTAKIT_TESTS "Build the tests" ON)
option(ORTAKIT_BENCH "Build the benchmarks" OFF)
option(ORTAKIT_FUZZ "Build the fuzz targets (Clang only)" OFF)
# Several files are compiled as one, which reads the headers once for all of them. Off, each file shows that it includes
# what it needs; both are kept working.
option(ORTAKIT_UNITY "Compile the files of a room in batches" ON)
set(ORTAKIT_SANITIZE "" CACHE STRING "Sanitizers, as -fsanitize= takes them")

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTOUIC ON)
set(CMAKE_AUTORCC ON)

set(CMAKE_UNITY_BUILD ${ORTAKIT_UNITY})
set(CMAKE_UNITY_BUILD_BATCH_SIZE 8)

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
if(ORTAKIT_UNITY AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # Of files compiled as one, the constants of one lie around the other, whose own names may hide them, and the types
    # of either's unnamed namespace look as if they came from a header.
    add_compile_options(-Wno-shadow -Wshadow=local -Wno-subobject-linkage)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    # Part of the language since C++14, and off unless asked for before Clang 19.
    add_compile_options(-fsized-deallocation)
endif()
add_compile_definitions(QT_NO_CAST_FROM_ASCII QT_NO_FOREACH)

# What users run: hardened as Debian's packages are, and the same bytes wherever the sources stand.
add_compile_options("$<$<CONFIG:Release>:-fstack-protector-strong;-Wformat;-Werror=format-security>"
                    "$<$<CONFIG:Release>:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>"
                    "$<$<CONFIG:Release>:-ffile-prefix-map=${CMAKE_BINARY_DIR}=build>"
                    "$<$<CONFIG:Release>:-ffile-prefix-map=${CMAKE_SOURCE_DIR}=.>")
add_link_options("$<$<CONFIG:Release>:LINKER:-z,relro,-z,now>")

if(ORTAKIT_SANITIZE)
    add_compile_options(-fsanitize=${ORTAKIT_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
    add_link_options(-fsanitize=${ORTAKIT_SANITIZE})
    if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
        # What Clang 14 puts before each function to check its type by, it cannot assemble for coroutines.
        add_compile_options(-fno-sanitize=function)
    endif()
endif()
