# The few commands that every folder of Src/ and Tests/ is described with.
include(GenerateExportHeader)
include(CMakePackageConfigHelpers)

set_property(GLOBAL PROPERTY NX_MODULES "")

# nx_add_library(<Name> HEADERS ... SOURCES ... [PUBLIC_LINK ...] [PRIVATE_LINK ...])
#
# One shared library of Src/<Name> with hidden symbols. HEADERS are installed and included as
# <Name/Header.h>; what SOURCES names (private headers included) stays inside. Exports are marked
# with <NAME>_EXPORT from <Name/<Name>Export.h>. <NAME>_TEST_EXPORT marks what only the tests of
# the build tree may reach: it exports nothing when the tests are not built.
function(nx_add_library name)
    cmake_parse_arguments(arg "" "" "HEADERS;SOURCES;PUBLIC_LINK;PRIVATE_LINK" ${ARGN})
    string(TOUPPER ${name} upper)
    add_library(${name} SHARED ${arg_HEADERS} ${arg_SOURCES})
    add_library(Nx::${name} ALIAS ${name})

    set(generated ${CMAKE_BINARY_DIR}/generated)
    generate_export_header(${name} EXPORT_FILE_NAME ${generated}/${name}/${name}Export.h)
    target_include_directories(${name} PUBLIC
        $<BUILD_INTERFACE:${CMAKE_SOURCE_DIR}/Src>
        $<BUILD_INTERFACE:${generated}>
        $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/Nx>)
    target_link_libraries(${name} PUBLIC ${arg_PUBLIC_LINK} PRIVATE ${arg_PRIVATE_LINK} $<BUILD_INTERFACE:NxBuildFlags>)
    if(NX_BUILD_TESTS OR NX_BUILD_BENCHMARKS)
        target_compile_definitions(${name} PUBLIC $<BUILD_INTERFACE:${upper}_TEST_EXPORT=${upper}_EXPORT>)
    else()
        target_compile_definitions(${name} PRIVATE ${upper}_TEST_EXPORT=)
    endif()
    set_target_properties(${name} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})

    install(TARGETS ${name} EXPORT NxMediaLibraryTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
    # Headers keep their folders, so that an installed one is included by the same name.
    foreach(header IN LISTS arg_HEADERS)
        cmake_path(GET header PARENT_PATH folder)
        install(FILES ${header} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/Nx/${name}/${folder})
    endforeach()
    install(FILES ${generated}/${name}/${name}Export.h
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/Nx/${name})
    set_property(TARGET ${name} PROPERTY NX_PUBLIC_HEADERS ${arg_HEADERS})
    set_property(GLOBAL APPEND PROPERTY NX_MODULES ${name})
endfunction()

# nx_add_test(<tst_Class> [SOURCES ...] [LINK ...] [LABELS ...])
#
# One test program of one source file <tst_Class>.cpp, run offscreen with a home of its own.
function(nx_add_test name)
    cmake_parse_arguments(arg "" "" "SOURCES;LINK;LABELS" ${ARGN})
    add_executable(${name} ${name}.cpp ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE ${arg_LINK} NxTestSupport NxBuildFlags Qt5::Test)
    add_test(NAME ${name} COMMAND ${name})
    set(timeout 600) # Ends what hangs; how fast the machine is must not matter.
    if(NX_SANITIZE)
        math(EXPR timeout "${timeout} * 3")
    endif()
    nx_set_test_environment(${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT ${timeout} LABELS "${arg_LABELS}")
endfunction()

# The surroundings of every test: no display, fixed fonts, a time zone with summer time, and
# user folders inside the build tree, so that a test never reads or writes the user's own.
function(nx_set_test_environment name)
    set(home ${CMAKE_BINARY_DIR}/test-home/${name})
    file(MAKE_DIRECTORY ${home}/runtime)
    file(CHMOD ${home}/runtime PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
    set_tests_properties(${name} PROPERTIES ENVIRONMENT
        "QT_QPA_PLATFORM=offscreen;QT_FONT_DPI=96;QTEST_FUNCTION_TIMEOUT=1800000;LANG=C.UTF-8;LC_ALL=C.UTF-8;TZ=Europe/Berlin;HOME=${home};XDG_RUNTIME_DIR=${home}/runtime;XDG_DATA_HOME=${home}/data;XDG_CACHE_HOME=${home}/cache;XDG_CONFIG_HOME=${home}/config;TSAN_OPTIONS=halt_on_error=1 suppressions=${CMAKE_SOURCE_DIR}/Tests/Support/tsan.supp;LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/Tests/Support/lsan.supp:print_suppressions=0")
endfunction()

# Installs the CMake package through which a stranger's program finds the libraries.
function(nx_install_package)
    set(folder ${CMAKE_INSTALL_LIBDIR}/cmake/NxMediaLibrary)
    configure_package_config_file(${CMAKE_SOURCE_DIR}/cmake/NxMediaLibraryConfig.cmake.in
        ${CMAKE_BINARY_DIR}/NxMediaLibraryConfig.cmake INSTALL_DESTINATION ${folder})
    write_basic_package_version_file(${CMAKE_BINARY_DIR}/NxMediaLibraryConfigVersion.cmake
        COMPATIBILITY SameMinorVersion)
    install(FILES ${CMAKE_BINARY_DIR}/NxMediaLibraryConfig.cmake
        ${CMAKE_BINARY_DIR}/NxMediaLibraryConfigVersion.cmake DESTINATION ${folder})
    install(EXPORT NxMediaLibraryTargets NAMESPACE Nx:: DESTINATION ${folder})
endfunction()
