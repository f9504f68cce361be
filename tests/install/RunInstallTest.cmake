# Run by CTest with the definitions that CMakeLists.txt passes.

# Runs a command, which must succeed; what it writes to standard output is left in `output`.
function(run)
    execute_process(COMMAND ${ARGV} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE errors)
    if(NOT result EQUAL 0)
        list(JOIN ARGV " " command)
        message(FATAL_ERROR "${command}\nended with ${result}\n${output}\n${errors}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()

# Fails unless the text is the expected one.
function(require_equal text expected)
    if(NOT text STREQUAL expected)
        message(FATAL_ERROR "This was expected:\n${expected}\nThis came:\n${text}")
    endif()
endfunction()

# Configures and builds a project of this folder against the installed kit.
function(build_project name)
    run("${CMAKE_COMMAND}" -S "${CMAKE_CURRENT_LIST_DIR}/${name}" -B "${WORK_FOLDER}/${name}" -G "${GENERATOR}"
        "-DCMAKE_CXX_COMPILER=${COMPILER}" "-DCMAKE_BUILD_TYPE=${BUILD_TYPE}" "-DCMAKE_CXX_FLAGS=${flags}"
        "-DCMAKE_PREFIX_PATH=${kit};${QT_PREFIX}")
    run("${CMAKE_COMMAND}" --build "${WORK_FOLDER}/${name}")
endfunction()

if(SANITIZE)
    set(flags "-fsanitize=address,undefined")
endif()

# The kit must work wherever its folder is moved.
file(REMOVE_RECURSE "${WORK_FOLDER}")
run("${CMAKE_COMMAND}" --install "${BUILD_FOLDER}" --prefix "${WORK_FOLDER}/first-place")
set(kit "${WORK_FOLDER}/kit")
file(RENAME "${WORK_FOLDER}/first-place" "${kit}")

build_project(plugin)
if(WITH_WINDOWS)
    build_project(windows)
    run("${CMAKE_COMMAND}" -E env QT_QPA_PLATFORM=offscreen "${WORK_FOLDER}/windows/kit-with-windows")
endif()

if(WITH_HOST)
    set(host "${kit}/${PROGRAM_FOLDER}/orvane-host")
    run("${host}" --list-plugins)
    if(NOT output MATCHES "(^|\n)plain-text: ")
        message(FATAL_ERROR "The installed program does not find its plug-ins; it lists:\n${output}")
    endif()

    file(MAKE_DIRECTORY "${WORK_FOLDER}/exported")
    run("${host}" export "${CMAKE_CURRENT_LIST_DIR}/manuscript" --plugin upper-case --to "${WORK_FOLDER}/exported"
        --plugin-folder "${WORK_FOLDER}/plugin")
    require_equal("${output}" "${WORK_FOLDER}/exported/001 Only.upper\n")
    file(READ "${WORK_FOLDER}/exported/001 Only.upper" exported)
    require_equal("${exported}" "ONLY A FEW “WORDS”.\n")
endif()
