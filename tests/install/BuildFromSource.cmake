# Run by CTest with the definitions that CMakeLists.txt passes: builds a plug-in with the kit as a part of its project,
# once fetched and once as a subdirectory.
include("${CMAKE_CURRENT_LIST_DIR}/Steps.cmake")

file(REMOVE_RECURSE "${WORK_FOLDER}")
foreach(options IN ITEMS "WITH_FETCH_CONTENT=ON;FETCHCONTENT_SOURCE_DIR_ORVANEEXPORTKIT=${SOURCE_FOLDER}"
                         "WITH_FETCH_CONTENT=OFF;KIT_SOURCE=${SOURCE_FOLDER}")
    list(APPEND options "CMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER}" ORVANE_WARNINGS_AS_ERRORS=ON)
    list(TRANSFORM options PREPEND "-D")
    configuration(source "${WORK_FOLDER}" ${options})
    run(${configure})
    file(REMOVE "${WORK_FOLDER}/libupper-case.so")
    run("${CMAKE_COMMAND}" --build "${WORK_FOLDER}" --target upper-case)
    run("${HOST}" --plugin-folder "${WORK_FOLDER}" --list-plugins)
    if(NOT output MATCHES "(^|\n)upper-case: ")
        message(FATAL_ERROR "The host does not find the plug-in; it lists:\n${output}")
    endif()
endforeach()
