# Run by CTest with the definitions that CMakeLists.txt passes: installs the build, and follows the guide with it.
file(REMOVE_RECURSE "${WORK_FOLDER}")
set(kit "${WORK_FOLDER}/kit")
execute_process(COMMAND "${CMAKE_COMMAND}" --install "${BUILD_FOLDER}" --prefix "${kit}"
                OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
if(SANITIZE)
    set(ENV{CXXFLAGS} "-fsanitize=address,undefined")
endif()
set(ENV{CXX} "${COMPILER}")
set(ENV{KIT} "${kit}")
set(ENV{CMAKE_PREFIX_PATH} "${kit}:${QT_PREFIX}")
set(ENV{PATH} "${kit}/${PROGRAM_FOLDER}:$ENV{PATH}")
set(ENV{ORVANE_DEFAULTS_FOLDER} "${WORK_FOLDER}/defaults")
execute_process(COMMAND "${PYTHON}" "${CMAKE_CURRENT_LIST_DIR}/guide.py" "${GUIDE}" "${WORK_FOLDER}/markdown"
                COMMAND_ERROR_IS_FATAL ANY)
