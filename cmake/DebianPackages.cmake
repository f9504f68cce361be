# Debian's packages, one for each component of an installation: `cpack -G DEB` in a build folder, or
# `scripts/package.sh`, which builds as Debian does.

set(ORVANE_MAINTAINER "OrvaneExportKit authors <authors@orvane.invalid>" CACHE STRING
    "Whom Debian's packages name as their maintainer")

set(core_package "liborvaneexportkitcore${PROJECT_VERSION_MAJOR}")
set(windows_package "liborvaneexportkit${PROJECT_VERSION_MAJOR}")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME orvane-export-kit)
set(CPACK_PACKAGE_CONTACT "${ORVANE_MAINTAINER}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each package begins its description with its own
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_PACKAGE_DIRECTORY "${PROJECT_BINARY_DIR}/packages")
set(CPACK_COMPONENTS_ALL core development)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${PROJECT_BINARY_DIR}/OrvaneExportKit")
# Each package says of itself who may copy it and what changed.
set(CPACK_PRE_BUILD_SCRIPTS "${PROJECT_SOURCE_DIR}/cmake/DebianDocuments.cmake")
set(CPACK_ORVANE_SOURCE_FOLDER "${PROJECT_SOURCE_DIR}")

set(ldconfig_trigger "${PROJECT_BINARY_DIR}/debian/triggers")
file(WRITE "${ldconfig_trigger}" "activate-noawait ldconfig\n")

# dpkg-shlibdeps finds what comes from Debian; the packages beside this one, which have to be as new, are named here.
set(same_version "(= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})")
set(needs_core "${core_package} ${same_version}")
set(needs_windows "${windows_package} ${same_version}, ${needs_core}")
if(ORVANE_WITH_WINDOWS)
    set(needs_all_libraries "${needs_windows}")
else()
    set(needs_all_libraries "${needs_core}")
endif()

set(CPACK_DEBIAN_CORE_PACKAGE_NAME "${core_package}")
set(CPACK_DEBIAN_CORE_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_CORE_PACKAGE_MULTIARCH same)
set(CPACK_DEBIAN_CORE_PACKAGE_CONTROL_EXTRA "${ldconfig_trigger}")
set(CPACK_DEBIAN_CORE_DESCRIPTION "framework for export plug-ins of a writing application
It finds and removes the marks that the writing application puts into text,
lays out lines, sets typographic quotation marks, dashes and ellipses, and
keeps the settings of plug-ins.
.
This package contains the library that works without windows.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME liborvaneexportkit-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${needs_all_libraries}, qt6-base-dev (>= 6.4)")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_RECOMMENDS "qt6-l10n-tools, qt6-tools-dev-tools")
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "framework for export plug-ins - development files
A plug-in turns documents into files of one format; the kit does what every
format needs, from line layout to the sheet that shows the progress.
.
This package contains the headers, and what CMake and pkg-config have to know.")

if(ORVANE_WITH_WINDOWS)
    list(APPEND CPACK_COMPONENTS_ALL windows)
    set(CPACK_DEBIAN_WINDOWS_PACKAGE_NAME "${windows_package}")
    set(CPACK_DEBIAN_WINDOWS_PACKAGE_SECTION libs)
    set(CPACK_DEBIAN_WINDOWS_PACKAGE_MULTIARCH same)
    set(CPACK_DEBIAN_WINDOWS_PACKAGE_CONTROL_EXTRA "${ldconfig_trigger}")
    set(CPACK_DEBIAN_WINDOWS_PACKAGE_DEPENDS "${needs_core}")
    set(CPACK_DEBIAN_WINDOWS_DESCRIPTION "framework for export plug-ins - panels and sheets
It asks before files are replaced, shows how far an export has come, and binds
the controls of panels drawn in Qt Designer to the settings of a plug-in.
.
This package contains the library with the windows.")
    # What the packages of Qt's tools leave for others to name.
    string(APPEND CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS ", qt6-tools-dev (>= 6.4), libqt6opengl6-dev, libgl-dev")
endif()

if(ORVANE_BUILD_EXAMPLES)
    list(APPEND CPACK_COMPONENTS_ALL host)
    set(CPACK_DEBIAN_HOST_PACKAGE_NAME orvane-host)
    set(CPACK_DEBIAN_HOST_PACKAGE_SECTION text)
    set(CPACK_DEBIAN_HOST_PACKAGE_DEPENDS "${needs_all_libraries}")
    set(CPACK_DEBIAN_HOST_DESCRIPTION "small writing application that exports manuscripts
It exports the documents of a manuscript as plain text, web pages or LaTeX,
from its window or in a terminal, and loads further plug-ins.
.
It comes with orvane-defaults, which shows and repairs saved settings.")
endif()

if(ORVANE_WITH_DESIGNER)
    list(APPEND CPACK_COMPONENTS_ALL designer)
    set(CPACK_DEBIAN_DESIGNER_PACKAGE_NAME liborvaneexportkit-designer)
    set(CPACK_DEBIAN_DESIGNER_PACKAGE_SECTION libdevel)
    set(CPACK_DEBIAN_DESIGNER_PACKAGE_DEPENDS "${needs_windows}")
    set(CPACK_DEBIAN_DESIGNER_PACKAGE_RECOMMENDS designer-qt6)
    set(CPACK_DEBIAN_DESIGNER_DESCRIPTION "framework for export plug-ins - Qt Designer plug-in
It offers the controls for settings panels in Qt Designer, with their
properties: page preview, font field, token field and content view.")
endif()

include(CPack)
