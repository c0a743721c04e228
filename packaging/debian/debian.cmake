# The Debian packages, one for each component that is installed: cpack -G DEB, or scripts/package.sh.
set(VELMORA_MAINTAINER "The Velmora developers <velmora@users.noreply.invalid>" CACHE STRING
  "Who makes the Debian packages, with an address; set by packagers")

# What every package says of itself in its folder of documents.
set(debian ${PROJECT_BINARY_DIR}/packaging/debian)
file(READ ${PROJECT_SOURCE_DIR}/LICENSE license)
string(REGEX MATCH "Copyright[^\n]*" VELMORA_COPYRIGHT_FIELD "${license}")
string(REGEX REPLACE "^Copyright( \\(c\\))? *" "Copyright: " VELMORA_COPYRIGHT_FIELD "${VELMORA_COPYRIGHT_FIELD}")
string(REGEX REPLACE "^.*(Permission is hereby)" "\\1" VELMORA_LICENSE_FIELD "${license}")
string(REGEX REPLACE "\n\n" "\n.\n" VELMORA_LICENSE_FIELD "${VELMORA_LICENSE_FIELD}")
string(STRIP "${VELMORA_LICENSE_FIELD}" VELMORA_LICENSE_FIELD)
string(REPLACE "\n" "\n " VELMORA_LICENSE_FIELD " ${VELMORA_LICENSE_FIELD}")
configure_file(${CMAKE_CURRENT_LIST_DIR}/copyright.in ${debian}/copyright @ONLY)
string(TIMESTAMP VELMORA_RELEASE_TIME "%a, %d %b %Y %H:%M:%S +0000" UTC)  # SOURCE_DATE_EPOCH, where it is set
configure_file(${CMAKE_CURRENT_LIST_DIR}/changelog.in ${debian}/changelog @ONLY)
foreach(script postinst prerm postrm)
  configure_file(${CMAKE_CURRENT_LIST_DIR}/server.${script} ${debian}/${script} COPYONLY
    FILE_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
endforeach()

# velmora_deb(COMPONENT PACKAGE SECTION DESCRIPTION): the description's first line is its summary.
macro(velmora_deb component package section description)
  string(TOUPPER ${component} upper)
  set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${package})
  set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION ${section})
  set(CPACK_DEBIAN_${upper}_DESCRIPTION "${description}")
  list(APPEND CPACK_COMPONENTS_ALL ${component})
endmacro()

set(CPACK_COMPONENTS_ALL "")
velmora_deb(server velmora-server comm
  "Psion Organiser II server without a window, and tools
A Psion Organiser II calls over a serial cable, saves its files on this
computer and loads them back. This package has velmorad, the server for a
machine in a cupboard, with its systemd units; velmora-organiser, the
handheld's side of the link; velmora-files, the same conversions on files;
velmora-doctor, which finds out why a line does not work; and velmora-cable,
a cable on one machine.")
velmora_deb(doc velmora-doc doc
  "Psion Organiser II server, documents
The user guide, and what there is to know of the configuration, the file
formats and the messages of Velmora, the server for the Psion Organiser II.")
set(CPACK_DEBIAN_DOC_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_SERVER_PACKAGE_DEPENDS "systemd | systemd-standalone-sysusers | systemd-sysusers")
set(CPACK_DEBIAN_SERVER_PACKAGE_SUGGESTS velmora-doc)
set(CPACK_DEBIAN_SERVER_PACKAGE_CONTROL_EXTRA ${debian}/postinst ${debian}/prerm ${debian}/postrm)
if(VELMORA_DESKTOP)
  velmora_deb(desktop velmora comm
    "Psion Organiser II server with a window
A Psion Organiser II calls over a serial cable, saves its files on this
computer and loads them back: data files, which become text or CSV on the
way, procedures, and spreadsheets with their formulas. One window mirrors
the Organiser's display and says what to do when something is wrong.")
  set(CPACK_DEBIAN_DESKTOP_PACKAGE_DEPENDS "velmora-server (= ${PROJECT_VERSION})")
  # What the toolkit's own dialogs say in other languages.
  set(CPACK_DEBIAN_DESKTOP_PACKAGE_RECOMMENDS qt6-translations-l10n)
  set(CPACK_DEBIAN_DESKTOP_PACKAGE_SUGGESTS velmora-doc)
endif()
foreach(component ${CPACK_COMPONENTS_ALL})
  string(TOUPPER ${component} upper)
  set(folder ${CMAKE_INSTALL_DATAROOTDIR}/doc/${CPACK_DEBIAN_${upper}_PACKAGE_NAME})
  install(FILES ${debian}/copyright ${debian}/changelog DESTINATION ${folder} COMPONENT ${component} EXCLUDE_FROM_ALL)
endforeach()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME velmora)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_VENDOR Quillbrook)
set(CPACK_PACKAGE_CONTACT "${VELMORA_MAINTAINER}")
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_PACKAGING_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
# Folders are made with the rights that a package has, whatever its maker's umask is.
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/compress.cmake)
include(CPack)
