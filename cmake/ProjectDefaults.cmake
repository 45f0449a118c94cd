# Settings that hold for every piece: language level, output folders, warnings, ccache.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
    # The sloppiness is what ccache needs to work with precompiled headers.
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
        CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
        CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} CCACHE_NOHASHDIR=true ${CCACHE_PROGRAM})
endif()

# One interface target carries the flags of all our own targets.
add_library(project_flags INTERFACE)
target_compile_options(project_flags INTERFACE
    -Wall -Wextra -Woverloaded-virtual -Wconversion -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # GCC 12 sees overlapping copies in std::string operations that can't overlap (bug 105651).
    target_compile_options(project_flags INTERFACE -Wno-restrict)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CCACHE_PROGRAM)
    target_compile_options(project_flags INTERFACE -fpch-preprocess)
endif()
target_compile_definitions(project_flags INTERFACE
    QT_DEPRECATED_WARNINGS QT_NO_CAST_TO_ASCII QT_STRICT_ITERATORS)

# Qt 5's moc can't read the C++20 parts of the standard headers; without the compiler's own macros it
# takes their older branches.
set(CMAKE_AUTOMOC_COMPILER_PREDEFINES OFF)
