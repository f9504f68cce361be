# Run by CTest with the definitions that CMakeLists.txt passes: makes Debian's packages of the build, and uses what is
# in them. `scripts/package.sh --try` installs them with apt.
include("${CMAKE_CURRENT_LIST_DIR}/Steps.cmake")

# CPack packs no files below a folder whose name the locale cannot spell.
set(ENV{LC_ALL} C.UTF-8)
file(REMOVE_RECURSE "${WORK_FOLDER}")
run("${CPACK}" --config "${BUILD_FOLDER}/CPackConfig.cmake" -B "${WORK_FOLDER}/packages")
set(system "${WORK_FOLDER}/system")

# Fails unless a package has this field, or fields; what is in it goes into the system.
function(extract package)
    file(GLOB file "${WORK_FOLDER}/packages/${package}_${VERSION}-1_*.deb")
    run(dpkg-deb --field "${file}")
    foreach(field IN LISTS ARGN)
        string(FIND "\n${output}" "\n${field}" place)
        if(place EQUAL -1)
            message(FATAL_ERROR "${package} has no field that begins:\n${field}\nIt says of itself:\n${output}")
        endif()
    endforeach()
    run(dpkg-deb --extract "${file}" "${system}")
    foreach(name IN ITEMS copyright changelog.gz changelog.Debian.gz)
        if(NOT EXISTS "${system}/usr/share/doc/${package}/${name}")
            message(FATAL_ERROR "${package} has no ${name}")
        endif()
    endforeach()
endfunction()

extract(liborvaneexportkitcore1 "Depends: libc6" "Section: libs")
run(dpkg-deb --info "${WORK_FOLDER}/packages/liborvaneexportkitcore1_${VERSION}-1_${ARCHITECTURE}.deb" shlibs)
require_equal("${output}" "libOrvaneExportKitCore 1 liborvaneexportkitcore1 (>= ${VERSION}-1)\n")
extract(liborvaneexportkit1 "Depends: liborvaneexportkitcore1 (= ${VERSION}-1), " "Section: libs")
extract(liborvaneexportkit-dev
    "Depends: liborvaneexportkit1 (= ${VERSION}-1), liborvaneexportkitcore1 (= ${VERSION}-1), qt6-base-dev"
    "Section: libdevel")
extract(liborvaneexportkit-designer "Depends: liborvaneexportkit1 (= ${VERSION}-1), " "Section: libdevel")
extract(orvane-host "Depends: liborvaneexportkit1 (= ${VERSION}-1), " "Section: text")

set(kit "${system}/usr")
build_project(plugin)
export_with("${WORK_FOLDER}/plugin")
