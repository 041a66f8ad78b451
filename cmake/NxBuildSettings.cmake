# Language level, warnings, hidden symbols, sanitizers and output folders of every target.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)

include(GNUInstallDirs)
# An installed program finds the libraries beside it, wherever the prefix is moved to.
set(CMAKE_INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR};$ORIGIN")

find_program(NX_CCACHE ccache)
if(NX_CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${NX_CCACHE})
    set(CMAKE_C_COMPILER_LAUNCHER ${NX_CCACHE})
endif()

add_library(NxBuildFlags INTERFACE)
if(MSVC)
    target_compile_options(NxBuildFlags INTERFACE /W4 /utf-8 $<$<BOOL:${NX_WARNINGS_AS_ERRORS}>:/WX>)
else()
    target_compile_options(NxBuildFlags INTERFACE
        -Wall -Wextra -Wpedantic -Wshadow -Woverloaded-virtual -Wno-psabi
        $<$<BOOL:${NX_WARNINGS_AS_ERRORS}>:-Werror>)
endif()
target_compile_definitions(NxBuildFlags INTERFACE
    QT_NO_KEYWORDS
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_URL_CAST_FROM_STRING
    QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_DEPRECATED_WARNINGS
    QT_DISABLE_DEPRECATED_BEFORE=0x050F00)

if(NX_SANITIZE)
    add_compile_options(-fsanitize=${NX_SANITIZE} -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${NX_SANITIZE})
    if(NX_SANITIZE MATCHES "undefined")
        add_compile_options(-fno-sanitize-recover=undefined)
    endif()
endif()
