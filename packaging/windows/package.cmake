# What is installed on Windows, and the target "package": the installer and the archive.

if(VELMORA_TOOLKIT)
  set(programs velmora velmorad velmora-organiser velmora-files velmora-doctor)
else()
  set(programs velmora-organiser velmora-files velmora-doctor)
endif()
install(TARGETS ${programs} RUNTIME DESTINATION .)

# Texts of Velmora.ini that are ready made; Setup offers them.
if(VELMORA_TOOLKIT)
  install(DIRECTORY ${CMAKE_CURRENT_LIST_DIR}/../languages DESTINATION .)
endif()

# A double click opens a page in the browser; Windows has nothing that opens Markdown.
include(packaging/documents.cmake)
velmora_pages(pages user-guide windows configuration messages formats headless organiser-tool cable-doctor)
install(FILES ${pages} DESTINATION docs)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs/images DESTINATION docs FILES_MATCHING PATTERN "*.png")

# Wireshark looks for neither of them there; docs/windows.md says where to put them.
install(FILES ${CMAKE_CURRENT_LIST_DIR}/../wireshark/organiser.lua DESTINATION wireshark)
install(DIRECTORY ${CMAKE_CURRENT_LIST_DIR}/../wireshark/profile/ DESTINATION wireshark/Velmora)

# Plain texts get the line ends and the ending that the Notepad goes by.
function(velmora_install_text input name)
  configure_file(${input} ${PROJECT_BINARY_DIR}/documents/${name} @ONLY NEWLINE_STYLE DOS)
  install(FILES ${PROJECT_BINARY_DIR}/documents/${name} DESTINATION ${ARGN})
endfunction()
velmora_install_text(${PROJECT_SOURCE_DIR}/LICENSE LICENSE.txt .)
if(VELMORA_TOOLKIT)
  # The toolkit is in the programs; its licence wants its own text to go along, those of its parts, and to be told where
  # its source is.
  get_filename_component(toolkit ${Qt6_DIR}/../../.. ABSOLUTE)
  file(GLOB VELMORA_TOOLKIT_SOURCE RELATIVE ${toolkit}/source ${toolkit}/source/*.dsc)
  string(REGEX REPLACE "^qt6-base_(.*)\\.dsc$" "\\1" VELMORA_TOOLKIT_VERSION "${VELMORA_TOOLKIT_SOURCE}")
  if(NOT VELMORA_TOOLKIT_VERSION)
    message(FATAL_ERROR "${toolkit} has no source of the toolkit: run scripts/setup-windows.sh")
  endif()
  configure_file(${toolkit}/toolkit-parts.txt ${PROJECT_BINARY_DIR}/documents/toolkit-parts.txt COPYONLY)
  install(FILES ${PROJECT_BINARY_DIR}/documents/toolkit-parts.txt DESTINATION licences)
  velmora_install_text(${CMAKE_CURRENT_LIST_DIR}/third-party.txt third-party.txt licences)
  velmora_install_text(/usr/share/common-licenses/LGPL-3 LGPL-3.txt licences)
  velmora_install_text(/usr/share/common-licenses/GPL-3 GPL-3.txt licences)
endif()

set(CPACK_GENERATOR NSIS ZIP)
set(CPACK_PACKAGE_NAME Velmora)
set(CPACK_PACKAGE_VENDOR Quillbrook)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_VELMORA_CONTACT "${VELMORA_CONTACT}")
set(CPACK_PACKAGE_FILE_NAME Velmora-${PROJECT_VERSION}-windows-x86_64)
set(CPACK_PACKAGE_INSTALL_DIRECTORY Velmora)
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
# The script of the installer is ours: CMake's own one asks for an administrator.
list(PREPEND CMAKE_MODULE_PATH ${CMAKE_CURRENT_LIST_DIR})
set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_CURRENT_LIST_DIR}/pack.cmake)
set(CPACK_VELMORA_ARTWORK ${CMAKE_CURRENT_LIST_DIR})
file(STRINGS ${PROJECT_SOURCE_DIR}/LICENSE CPACK_VELMORA_COPYRIGHT REGEX "^Copyright" LIMIT_COUNT 1)
include(CPack)
