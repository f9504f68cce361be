# Run by CTest with the definitions that CMakeLists.txt passes.
include("${CMAKE_CURRENT_LIST_DIR}/Steps.cmake")

# The kit must work wherever its folder is moved.
file(REMOVE_RECURSE "${WORK_FOLDER}")
run("${CMAKE_COMMAND}" --install "${BUILD_FOLDER}" --prefix "${WORK_FOLDER}/first-place")
set(kit "${WORK_FOLDER}/kit")
file(RENAME "${WORK_FOLDER}/first-place" "${kit}")

# Fails unless CMake refuses a version or a component of the package with this message.
function(require_refusal version component message)
    configuration(components "${WORK_FOLDER}/components" "-DVERSION=${version}" "-DCOMPONENT=${component}")
    execute_process(COMMAND ${configure} RESULT_VARIABLE result OUTPUT_QUIET ERROR_VARIABLE errors)
    string(REGEX REPLACE "[ \n]+" " " errors "${errors}")
    string(FIND "${errors}" "${message}" place)
    if(result EQUAL 0 OR place EQUAL -1)
        message(FATAL_ERROR "This refusal was expected:\n${message}\nCMake ended with ${result}:\n${errors}")
    endif()
endfunction()
require_refusal(1.0 Shiny "There is no component \"Shiny\"; the components are Core and OrvaneExportKit.")
require_refusal(2.0 Core "compatible with requested version \"2.0\"")
if(NOT WITH_WINDOWS)
    require_refusal(1.0 OrvaneExportKit "The component OrvaneExportKit, the kit with windows, is not installed")
endif()

# By CMake's package.
build_project(plugin)
if(WITH_WINDOWS)
    build_project(windows)
    run("${CMAKE_COMMAND}" -E env QT_QPA_PLATFORM=offscreen "${WORK_FOLDER}/windows/kit-with-windows")
endif()

# By Qt Designer, whose plug-in finds the libraries of its own kit.
if(WITH_DESIGNER)
    run(ldd "${kit}/${LIBRARY_FOLDER}/qt6/plugins/designer/libOrvaneExportKitDesigner.so")
    foreach(library IN ITEMS OrvaneExportKit OrvaneExportKitCore)
        string(FIND "${output}" "lib${library}.so.1 => ${kit}/" place)
        if(place EQUAL -1)
            message(FATAL_ERROR "The plug-in for Qt Designer does not find ${library} beside it:\n${output}")
        endif()
    endforeach()
endif()

# By pkg-config.
function(make target)
    run("${CMAKE_COMMAND}" -E env "PKG_CONFIG_PATH=${kit}/${LIBRARY_FOLDER}/pkgconfig" "CXX=${COMPILER}"
        "CXXFLAGS=${flags}" SOURCES=../sources
        make -C "${WORK_FOLDER}/make" -f "${CMAKE_CURRENT_LIST_DIR}/make/Makefile" ${target})
endfunction()
file(MAKE_DIRECTORY "${WORK_FOLDER}/make")
# Copies, because Make knows no names with spaces, which the folder around the sources may have.
file(COPY "${CMAKE_CURRENT_LIST_DIR}/plugin" "${CMAKE_CURRENT_LIST_DIR}/windows" DESTINATION "${WORK_FOLDER}/sources")
make(all)
if(WITH_WINDOWS)
    make(windows)
    run("${CMAKE_COMMAND}" -E env QT_QPA_PLATFORM=offscreen "${WORK_FOLDER}/make/kit-with-windows")
endif()

if(WITH_HOST)
    export_with("${WORK_FOLDER}/plugin")
    export_with("${WORK_FOLDER}/make")
endif()
