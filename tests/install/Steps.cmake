# What the tests in this folder have in common.

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

if(SANITIZE)
    set(flags "-fsanitize=address,undefined")
endif()

# Sets `configure` to the command that configures a project of this folder in a build folder; options may follow.
macro(configuration name folder)
    set(configure "${CMAKE_COMMAND}" -S "${CMAKE_CURRENT_LIST_DIR}/${name}" -B "${folder}" -G "${GENERATOR}"
        "-DCMAKE_CXX_COMPILER=${COMPILER}" "-DCMAKE_BUILD_TYPE=${BUILD_TYPE}" "-DCMAKE_CXX_FLAGS=${flags}"
        "-DCMAKE_PREFIX_PATH=${kit}\;${QT_PREFIX}" ${ARGN})
endmacro()

# Configures and builds a project of this folder against the kit that is installed in the folder `kit`.
function(build_project name)
    configuration("${name}" "${WORK_FOLDER}/${name}")
    run(${configure})
    run("${CMAKE_COMMAND}" --build "${WORK_FOLDER}/${name}")
endfunction()

# Fails unless the installed host finds its plug-ins, and exports with the plug-in in a folder.
function(export_with plugin_folder)
    set(host "${kit}/${PROGRAM_FOLDER}/orvane-host")
    run("${host}" --list-plugins)
    if(NOT output MATCHES "(^|\n)plain-text: ")
        message(FATAL_ERROR "The installed program does not find its plug-ins; it lists:\n${output}")
    endif()

    set(exported "${plugin_folder}/exported")
    file(MAKE_DIRECTORY "${exported}")
    run("${host}" export "${CMAKE_CURRENT_LIST_DIR}/manuscript" --plugin upper-case --to "${exported}"
        --plugin-folder "${plugin_folder}")
    require_equal("${output}" "${exported}/001 Only.upper\n")
    file(READ "${exported}/001 Only.upper" content)
    require_equal("${content}" "ONLY A FEW “WORDS”.\n")
endfunction()
