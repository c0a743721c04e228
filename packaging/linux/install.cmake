# What "cmake --install" puts where on Linux. The components are the packages that it is parted into: "desktop" (the
# window), "server" (all that needs no display) and "doc".
include(GNUInstallDirs)
set(here ${CMAKE_CURRENT_LIST_DIR})
# Debian's folder of documents is called as the package is, in small letters.
set(documents ${CMAKE_INSTALL_DATAROOTDIR}/doc/velmora)
# The documents for owners, which link to each other only.
set(documented user-guide configuration messages formats headless organiser-tool cable-doctor reliability windows)

# velmora_unit(NAME CONFIGURATION FOLDER DESCRIPTION): a unit of the server without a window.
function(velmora_unit name configuration folder description)
  set(VELMORA_UNIT_CONFIG ${configuration})
  set(VELMORA_UNIT_FOLDER ${folder})
  set(VELMORA_UNIT_NAME "${description}")
  set(page headless.md)
  if(VELMORA_MANUALS)
    set(page headless.html)
  endif()
  set(VELMORA_UNIT_DOCUMENT ${CMAKE_INSTALL_PREFIX}/${documents}/docs/${page})
  set(made ${PROJECT_BINARY_DIR}/packaging/${name}.service)
  configure_file(${here}/velmorad.service.in ${made} @ONLY)
  install(FILES ${made} DESTINATION lib/systemd/system COMPONENT server)
endfunction()

include(${here}/manual/manual.cmake)

install(TARGETS velmora-organiser velmora-files velmora-doctor velmora-cable COMPONENT server)
install(FILES ${here}/70-velmora.rules DESTINATION lib/udev/rules.d COMPONENT server)
install(FILES ${here}/sysusers.conf DESTINATION lib/sysusers.d RENAME velmora.conf COMPONENT server)
install(FILES ${here}/tmpfiles.conf DESTINATION lib/tmpfiles.d RENAME velmora.conf COMPONENT server)
# Wireshark looks for neither of them there: which folder it looks into is its user's choice.
install(FILES ${here}/../wireshark/organiser.lua DESTINATION ${CMAKE_INSTALL_DATADIR}/velmora/wireshark COMPONENT server)
install(DIRECTORY ${here}/../wireshark/profile/ DESTINATION ${CMAKE_INSTALL_DATADIR}/velmora/wireshark/Velmora
  COMPONENT server)
if(VELMORA_TOOLKIT)
  install(TARGETS velmorad COMPONENT server)
  velmora_unit(velmorad /etc/velmora/Velmora.ini /var/lib/velmora/psion "")
  # For several handhelds: an instance for each, called as its configuration file is.
  velmora_unit(velmorad@ /etc/velmora/%i.ini /var/lib/velmora/%i " (%i)")
endif()
if(VELMORA_DESKTOP)
  install(TARGETS velmora COMPONENT desktop)
  install(FILES ${here}/../velmora.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT desktop)
  install(FILES ${PROJECT_BINARY_DIR}/packaging/org.velmora.Velmora.metainfo.xml
    DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo COMPONENT desktop)
  install(DIRECTORY ${here}/../languages DESTINATION ${CMAKE_INSTALL_DATADIR}/velmora COMPONENT desktop)
  set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
  foreach(size 16 24 32 48 64 128 256)
    install(FILES ${PROJECT_SOURCE_DIR}/src/ui/qt/resources/velmora-${size}.png
      DESTINATION ${icons}/${size}x${size}/apps RENAME velmora.png COMPONENT desktop)
  endforeach()
  install(FILES ${here}/../artwork/velmora.svg DESTINATION ${icons}/scalable/apps COMPONENT desktop)
endif()

install(FILES ${PROJECT_SOURCE_DIR}/CHANGELOG.md DESTINATION ${documents} COMPONENT doc)
# Part of no package: packages have the licence in their own form.
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${documents} COMPONENT licence)
if(VELMORA_MANUALS)
  include(packaging/documents.cmake)
  velmora_pages(pages ${documented})
  add_dependencies(programs velmora-documents)
else()
  list(TRANSFORM documented APPEND .md OUTPUT_VARIABLE pages)
  list(TRANSFORM pages PREPEND ${PROJECT_SOURCE_DIR}/docs/)
endif()
install(FILES ${pages} DESTINATION ${documents}/docs COMPONENT doc)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs/images DESTINATION ${documents}/docs COMPONENT doc FILES_MATCHING
  PATTERN "*.png")
