# The test InstalledPackage, labelled "package": a stranger's program against the installed package.
add_test(NAME InstalledPackage COMMAND ${CMAKE_COMMAND}
    -DBUILD_DIR=${CMAKE_BINARY_DIR}
    -DSOURCE_DIR=${CMAKE_SOURCE_DIR}
    -DWORK_DIR=${CMAKE_CURRENT_BINARY_DIR}/package
    -DBUILD_TYPE=${CMAKE_BUILD_TYPE}
    -P ${CMAKE_CURRENT_SOURCE_DIR}/InstalledPackage.cmake)
nx_set_test_environment(InstalledPackage)
set_tests_properties(InstalledPackage PROPERTIES LABELS package TIMEOUT 600)
