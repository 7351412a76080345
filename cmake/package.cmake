# SPDX-License-Identifier: MIT
#
# The Debian packages: gfpq (the host, the module, the command line tool) and gfpq-dev (to build a host with).
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME gfpq)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "gfpq maintainers <gfpq@localhost>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_COMPONENTS_ALL runtime development)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${CPACK_PACKAGE_CONTACT}")

# The libraries' packages follow from what the files are linked with. Qt loads its SQLite driver at run time, so no link
# shows that need.
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME gfpq)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION electronics)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/lib)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_DEPENDS libqt5sql5-sqlite)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_RECOMMENDS qttranslations5-l10n)
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION
    "A catalogue of serial configuration flash devices with their programming
flows, a database for devices of one's own, the dialog in which both are
browsed and edited, and two command line tools: gfpdb for the database, and
gfprog, which programs devices, also on emulated chips.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME gfpq-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "gfpq (= ${PROJECT_VERSION}), qtbase5-dev")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION
    "Headers and CMake files for hosts that load the Configuration Device dialog,
and for flash database libraries that it works on. With an example host.")

include(CPack)
