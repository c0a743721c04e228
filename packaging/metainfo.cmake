# The description for software catalogues, in the build folder, with the address of the page for faults if there is one.
set(bugtracker "")
if(VELMORA_CONTACT)
  set(bugtracker "\n  <url type=\"bugtracker\">${VELMORA_CONTACT}</url>")
endif()
# Catalogues fetch the pictures themselves, so they want addresses.
set(VELMORA_PICTURES "" CACHE STRING "Web address of a folder with the pictures of docs/images, for software catalogues")
set(screenshots "")
if(VELMORA_PICTURES)
  foreach(picture "main-window|The main window while a file arrives" "transfers|What was transferred"
      "setup|The choice of the port" "protocol-monitor|The protocol monitor")
    string(REGEX MATCH "^([^|]*)\\|(.*)$" picture "${picture}")
    set(kind "")
    if(NOT screenshots)
      set(kind " type=\"default\"")
    endif()
    if(NOT EXISTS ${PROJECT_SOURCE_DIR}/docs/images/${CMAKE_MATCH_1}.png)
      message(FATAL_ERROR "docs/images has no ${CMAKE_MATCH_1}.png")
    endif()
    string(APPEND screenshots "
    <screenshot${kind}>
      <caption>${CMAKE_MATCH_2}</caption>
      <image>${VELMORA_PICTURES}/${CMAKE_MATCH_1}.png</image>
    </screenshot>")
  endforeach()
  set(screenshots "\n  <screenshots>${screenshots}\n  </screenshots>")
endif()
# The releases are those of the changelog, whose headings are "## VERSION (YEAR-MONTH-DAY)" or "## VERSION (unreleased)".
string(TIMESTAMP today "%Y-%m-%d" UTC)
file(STRINGS ${PROJECT_SOURCE_DIR}/CHANGELOG.md headings REGEX "^## ")
set(releases "")
foreach(heading IN LISTS headings)
  if(NOT heading MATCHES "^## ([0-9.]+) \\(([0-9-]+|unreleased)\\)$")
    message(FATAL_ERROR "CHANGELOG.md: \"${heading}\" is not \"## VERSION (YEAR-MONTH-DAY)\"")
  endif()
  set(release "    <release version=\"${CMAKE_MATCH_1}\" date=\"${CMAKE_MATCH_2}\"/>")
  string(REPLACE "date=\"unreleased\"" "date=\"${today}\" type=\"development\"" release "${release}")
  list(APPEND releases "${release}")
endforeach()
list(JOIN releases "\n" releases)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/CHANGELOG.md)
configure_file(${CMAKE_CURRENT_LIST_DIR}/org.velmora.Velmora.metainfo.xml.in
  ${PROJECT_BINARY_DIR}/packaging/org.velmora.Velmora.metainfo.xml @ONLY)
