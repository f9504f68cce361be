# Run by CPack before it packs the components: adds to each what Debian wants to be in every package.
file(READ "${CPACK_ORVANE_SOURCE_FOLDER}/LICENSE" license)
string(REGEX MATCH "Copyright \\(c\\) ([^\n]+)" line "${license}")
set(owner "${CMAKE_MATCH_1}")
string(REGEX REPLACE "^.*\n\n(Permission)" "\\1" license "${license}")
string(REGEX REPLACE "\n\n" "\n.\n" license "${license}")
string(REGEX REPLACE "\n" "\n " license "${license}")
string(STRIP "${license}" license)
string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)

foreach(component IN LISTS CPACK_COMPONENTS_ALL)
    string(TOUPPER "${component}" name)
    set(package "${CPACK_DEBIAN_${name}_PACKAGE_NAME}")
    set(folder "${CPACK_TEMPORARY_DIRECTORY}/${component}${CPACK_PACKAGING_INSTALL_PREFIX}/share/doc/${package}")
    file(WRITE "${folder}/copyright" "Format: https://www.debian.org/doc/packaging-manuals/copyright-format/1.0/
Upstream-Name: OrvaneExportKit

Files: *
Copyright: ${owner}
License: Expat
 ${license}
")
    file(COPY_FILE "${CPACK_ORVANE_SOURCE_FOLDER}/CHANGELOG.md" "${folder}/changelog")
    file(WRITE "${folder}/changelog.Debian"
"${CPACK_PACKAGE_NAME} (${CPACK_PACKAGE_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}) unstable; urgency=medium

  * Packages of version ${CPACK_PACKAGE_VERSION}.

 -- ${CPACK_PACKAGE_CONTACT}  ${date}
")
    execute_process(COMMAND gzip -9n "${folder}/changelog" "${folder}/changelog.Debian" COMMAND_ERROR_IS_FATAL ANY)
endforeach()
