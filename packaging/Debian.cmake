# Two Debian packages from the install rules' components, built with
# `cpack -G DEB` in a build configured for /usr (scripts/debian-packages.sh):
#   vexel          the command, the recorder, its systemd units, manual pages
#                  and completions; nothing of Qt
#   vexel-desktop  the app, its desktop entry, icons, metadata and translations
# Library dependencies are found by dpkg-shlibdeps; what the programs run or
# load at run time is named here.

set(VEXEL_DEB_VERSION ${PROJECT_VERSION}-1)

# Each package carries its copyright and changelog in its own doc folder, and
# tells lintian that it is not an upload to Debian's archive. Only an install
# into /usr, as a package's is, places them.
foreach(package vexel vexel-desktop)
  set(VEXEL_PACKAGE ${package})
  set(changelog ${CMAKE_CURRENT_BINARY_DIR}/debian/${package}/changelog.Debian)
  configure_file(${CMAKE_CURRENT_LIST_DIR}/debian/changelog.in ${changelog} @ONLY)
  add_custom_command(OUTPUT ${changelog}.gz COMMAND gzip -9 -n -k -f ${changelog} DEPENDS ${changelog} VERBATIM)
  list(APPEND VEXEL_CHANGELOGS ${changelog}.gz)
  set(overrides ${CMAKE_CURRENT_BINARY_DIR}/debian/${package}/lintian-overrides)
  configure_file(${CMAKE_CURRENT_LIST_DIR}/debian/lintian-overrides.in ${overrides} @ONLY)
  if(CMAKE_INSTALL_PREFIX STREQUAL "/usr" AND (package STREQUAL "vexel" OR VEXEL_BUILD_APP))
    install(FILES ${CMAKE_CURRENT_LIST_DIR}/debian/copyright ${changelog}.gz
            DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${package} COMPONENT ${package})
    install(FILES ${overrides} DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides RENAME ${package}
            COMPONENT ${package})
  endif()
endforeach()
add_custom_target(vexel_changelogs ALL DEPENDS ${VEXEL_CHANGELOGS})

set(CPACK_PACKAGE_NAME vexel)
set(CPACK_PACKAGE_VENDOR "The Vexel developers")
set(CPACK_PACKAGE_CONTACT "The Vexel developers <team@vexel.dev>")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://vexel.dev/")
set(CPACK_GENERATOR DEB)
# The units and the desktop entry name the programs' folder as installed, so
# the package stages with DESTDIR and keeps /usr as the prefix.
set(CPACK_SET_DESTDIR ON)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL vexel)
if(VEXEL_BUILD_APP)
  list(APPEND CPACK_COMPONENTS_ALL vexel-desktop)
endif()

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(CPACK_DEBIAN_VEXEL_PACKAGE_NAME vexel)
# ss lists the listening ports; lsof names their processes where ss can't.
set(CPACK_DEBIAN_VEXEL_PACKAGE_DEPENDS "iproute2")
# pci.ids names the GPU.
set(CPACK_DEBIAN_VEXEL_PACKAGE_RECOMMENDS "pci.ids")
set(CPACK_DEBIAN_VEXEL_PACKAGE_SUGGESTS "lsof, prometheus")
set(CPACK_DEBIAN_VEXEL_DESCRIPTION "monitor of one computer, with a year of history
Vexel reads the processor core by core, memory and its pressure, swap,
disks, network, the GPU, the battery and the heat every few seconds, and
every process, which it groups into the apps, services and tools that own
them. It keeps a year of history, finds the spikes in it with the app
behind each, and lists listening ports, dev servers and Docker containers.
.
This package holds the vexel command (tables or JSON, and a read-only MCP
server for AI assistants) and vexel-recorder, which records the history as
a systemd user or system service and can serve its readings to Prometheus.")

set(CPACK_DEBIAN_VEXEL-DESKTOP_PACKAGE_NAME vexel-desktop)
# Qt finds its window system through plugins that no library links.
set(CPACK_DEBIAN_VEXEL-DESKTOP_PACKAGE_DEPENDS "vexel (= ${VEXEL_DEB_VERSION}), qt6-qpa-plugins")
# Without them the app still runs: as an X11 client under Wayland, with its
# own PNG symbols for the icon theme's SVG ones, and in the system's font.
set(CPACK_DEBIAN_VEXEL-DESKTOP_PACKAGE_RECOMMENDS "qt6-wayland, libqt6svg6, fonts-inter")
set(CPACK_DEBIAN_VEXEL-DESKTOP_DESCRIPTION "monitor of one computer, with a year of history - desktop app
Vexel reads the processor core by core, memory and its pressure, swap,
disks, network, the GPU, the battery and the heat every few seconds, and
every process, which it groups into the apps, services and tools that own
them. It keeps a year of history and finds the spikes in it.
.
This package holds the desktop app: a window with a page for each reading
and its history, and readings in the panel's status area. Only the app
changes anything (quitting an app, stopping a server), and it asks first.")

include(CPack)
