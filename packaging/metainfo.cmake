# The description for software catalogues, in the build folder, with the address of the page for faults if there is one.
set(bugtracker "")
if(VELMORA_CONTACT)
  set(bugtracker "\n  <url type=\"bugtracker\">${VELMORA_CONTACT}</url>")
endif()
configure_file(${CMAKE_CURRENT_LIST_DIR}/org.velmora.Velmora.metainfo.xml.in
  ${PROJECT_BINARY_DIR}/packaging/org.velmora.Velmora.metainfo.xml @ONLY)
