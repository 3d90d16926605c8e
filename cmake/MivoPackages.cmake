# The Debian packages of the three parts that are installed: mivo, mivo-tally and libmivo-dev. For the Debian that they
# are built on, which their version names: what is built on 13 is an upgrade of what was built on 12.
set(MIVO_MAINTAINER "The Mivo authors <packages@mivo.app>" CACHE STRING "Who answers for the packages: Name <address>")

file(STRINGS /etc/os-release release REGEX "^VERSION_ID=")
string(REGEX REPLACE "[^0-9.]" "" release "${release}")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_CONTACT "${MIVO_MAINTAINER}")
set(CPACK_SET_DESTDIR ON) # the units name the program by its prefix, which must not be that of a folder on the way
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/compress.cmake)
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_COMPONENTS_ALL mivo tally dev)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1+deb${release})
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)

# What no scanner finds: the fonts, the pieces of Qt that QML asks for by name, and data that is read as files.
file(STRINGS ${PROJECT_SOURCE_DIR}/cmake/packages.txt needed REGEX "^app +(fonts-|qml6-)")
list(FILTER needed EXCLUDE REGEX qttest)
list(TRANSFORM needed REPLACE "^app +" "")
list(APPEND needed ca-certificates tzdata)
list(JOIN needed ", " CPACK_DEBIAN_MIVO_PACKAGE_DEPENDS)
set(CPACK_DEBIAN_MIVO_PACKAGE_NAME mivo)
set(CPACK_DEBIAN_MIVO_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_MIVO_PACKAGE_RECOMMENDS "default-dbus-session-bus | dbus-session-bus, hicolor-icon-theme")
set(CPACK_DEBIAN_MIVO_DESCRIPTION "intermittent fasting, and the statistics of it
An app, a command line and notifications for who fasts in intervals: a timer
with its history, time per fasting zone, streaks, body weights with their
trend, and badges. All of it stays on this machine, and can be brought along
from other apps and taken out again.")

set(CPACK_DEBIAN_TALLY_PACKAGE_NAME mivo-tally)
set(CPACK_DEBIAN_TALLY_PACKAGE_SECTION web)
set(CPACK_DEBIAN_TALLY_PACKAGE_DEPENDS ca-certificates)
set(CPACK_DEBIAN_TALLY_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_TALLY_PACKAGE_CONTROL_EXTRA
    ${PROJECT_SOURCE_DIR}/tally/deploy/debian/postinst ${PROJECT_SOURCE_DIR}/tally/deploy/debian/prerm
    ${PROJECT_SOURCE_DIR}/tally/deploy/debian/postrm)
set(CPACK_DEBIAN_TALLY_DESCRIPTION "vote server for the roadmap of Mivo
Counts the votes of a roadmap's features, in a file of its own or in Redis, and
serves the roadmap itself. Its systemd units are installed and not enabled.")

set(CPACK_DEBIAN_DEV_PACKAGE_NAME libmivo-dev)
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEV_PACKAGE_SUGGESTS "cmake, g++")
set(CPACK_DEBIAN_DEV_DESCRIPTION "statistics of intermittent fasting, as a C++ module
The calculations of a statistics screen for an app to embed: totals, streaks,
time per fasting zone, day bars, weight averages and trend. Static libraries of
C++20 that need the standard library and nothing else.")

# Debian asks of each package what it may be used for, and what changed in it.
string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
  string(TOUPPER ${component} key)
  set(package ${CPACK_DEBIAN_${key}_PACKAGE_NAME})
  set(documents ${PROJECT_BINARY_DIR}/documents/${package})
  file(CONFIGURE OUTPUT ${documents}/changelog.Debian CONTENT "${package} (@PROJECT_VERSION@-@CPACK_DEBIAN_PACKAGE_RELEASE@) unstable; urgency=medium

  * Built for Debian @release@; changelog.gz tells what changed.

 -- @MIVO_MAINTAINER@  @date@
")
  configure_file(${PROJECT_SOURCE_DIR}/CHANGELOG.md ${documents}/changelog COPYONLY)
  configure_file(${PROJECT_SOURCE_DIR}/LICENSE ${documents}/copyright COPYONLY)
  install(DIRECTORY ${documents}/ DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${package} COMPONENT ${component})
endforeach()

include(CPack)
