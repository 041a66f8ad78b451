# Installs the build into an empty prefix, moves the prefix (an installed package may lie anywhere),
# builds the programs of Docs/embedding/ and one that paints a row against it alone, and runs them.
#
# Needs BUILD_DIR, SOURCE_DIR, WORK_DIR and BUILD_TYPE.
cmake_minimum_required(VERSION 3.25)

function(step what)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result
        OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${what} failed (${result}):\n${output}")
    endif()
    set(step_output "${output}" PARENT_SCOPE)
endfunction()

set(prefix ${WORK_DIR}/prefix)
file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY ${WORK_DIR})
if(NOT EXISTS ${SOURCE_DIR}/Docs/embedding/CMakeLists.txt)
    message(FATAL_ERROR "There is no example program in Docs/embedding.")
endif()

step("Installing" ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${WORK_DIR}/installed)
file(RENAME ${WORK_DIR}/installed ${prefix})
file(COPY ${SOURCE_DIR}/Docs/embedding ${SOURCE_DIR}/Tests/House/installedViews
    DESTINATION ${WORK_DIR} PATTERN build EXCLUDE)

# build_and_run(FOLDER)   A project of the working folder whose program has the folder's name.
function(build_and_run folder)
    cmake_path(GET folder FILENAME name)
    set(example ${WORK_DIR}/${folder})
    step("Configuring ${name}" ${CMAKE_COMMAND} -S ${example} -B ${example}/build -G Ninja
        -DCMAKE_BUILD_TYPE=${BUILD_TYPE} -DCMAKE_PREFIX_PATH=${prefix}
        -DCMAKE_EXPORT_COMPILE_COMMANDS=ON)
    step("Building ${name}" ${CMAKE_COMMAND} --build ${example}/build)

    # Not a header of the source tree may have helped, nor a library of the build tree.
    file(READ ${example}/build/compile_commands.json commands)
    file(READ ${example}/build/build.ninja links)
    foreach(forbidden "${SOURCE_DIR}/Src" "${BUILD_DIR}/generated" "${BUILD_DIR}/lib/")
        string(FIND "${commands}${links}" "${forbidden}" position)
        if(NOT position EQUAL -1)
            message(FATAL_ERROR "${name} was built with ${forbidden}, not with the package alone.")
        endif()
    endforeach()
    string(FIND "${commands}" "${prefix}/" position)
    if(position EQUAL -1)
        message(FATAL_ERROR "${name} was not built with the installed headers.")
    endif()

    step("Running ${name}" ${CMAKE_COMMAND} -E env --unset=LD_LIBRARY_PATH
        ${example}/build/${name})
    message("${step_output}")
endfunction()

build_and_run(embedding)
build_and_run(embedding/panel)
build_and_run(installedViews)

# The installed program finds the installed worker, and reads a file with it.
file(WRITE ${WORK_DIR}/words.srt "1\n00:00:01,000 --> 00:00:02,000\nHello\n")
set(brevano ${CMAKE_COMMAND} -E env --unset=LD_LIBRARY_PATH --unset=NX_WORKER ${prefix}/bin/brevano)
step("Importing a file" ${brevano} import ${WORK_DIR}/Film.brevano ${WORK_DIR}/words.srt)
step("Reading it" ${brevano} info ${WORK_DIR}/Film.brevano words.srt --json)
string(FIND "${step_output}" "\"read\":\"done\"" position)
if(position EQUAL -1)
    message(FATAL_ERROR "The installed worker did not read the file:\n${step_output}")
endif()
file(GLOB worker ${prefix}/libexec/brevano/brevano-worker*)
if(worker STREQUAL "")
    message(FATAL_ERROR "The worker is not installed in libexec/brevano.")
endif()

# Without it what is imported stays, and nobody is told that all went well.
file(REMOVE ${worker})
set(project ${WORK_DIR}/Unread.brevano)
execute_process(COMMAND ${brevano} import ${project} ${WORK_DIR}/words.srt
    RESULT_VARIABLE code OUTPUT_VARIABLE output ERROR_VARIABLE output)
set(cause "The program that reads footage is not installed")
if(NOT code EQUAL 3 OR NOT output MATCHES "${cause}" OR NOT output MATCHES "1 media added")
    message(FATAL_ERROR "Importing without the worker ended with ${code}:\n${output}")
endif()
execute_process(COMMAND ${brevano} reread ${project}
    RESULT_VARIABLE code OUTPUT_VARIABLE output ERROR_VARIABLE output)
if(NOT code EQUAL 3 OR NOT output MATCHES "words.srt: The file was not read")
    message(FATAL_ERROR "Reading again without the worker ended with ${code}:\n${output}")
endif()
