# Manual pages and completions of the programs, out of the syntax of their command lines, an example of their
# configuration, as a first start writes it, and Velmora.ini(5), out of its document. All is made when the project is built and lies in the build's "manual".
set(manual ${PROJECT_BINARY_DIR}/manual)
file(MAKE_DIRECTORY ${manual})
set(made "")

# velmora_describe(PROGRAM FORM FILE FOLDER COMPONENT): makes FILE and installs it below the folder of shared data.
function(velmora_describe program form file folder component)
  add_custom_command(OUTPUT ${manual}/${file}
    COMMAND velmora-describe ${form} ${program} > ${file}
    WORKING_DIRECTORY ${manual} DEPENDS velmora-describe VERBATIM)
  install(FILES ${manual}/${file} DESTINATION ${folder} COMPONENT ${component})
  list(APPEND made ${manual}/${file})
  set(made ${made} PARENT_SCOPE)
endfunction()

set(described velmora-organiser velmora-files velmora-doctor velmora-cable)
if(VELMORA_TOOLKIT)
  list(APPEND described velmorad)
endif()
if(VELMORA_DESKTOP)
  list(APPEND described velmora)
endif()
foreach(program ${described})
  set(component server)
  if(program STREQUAL velmora)
    set(component desktop)
  endif()
  velmora_describe(${program} man ${program}.1 ${CMAKE_INSTALL_MANDIR}/man1 ${component})
  # The names that the shells look for.
  velmora_describe(${program} bash ${program} ${CMAKE_INSTALL_DATADIR}/bash-completion/completions ${component})
  velmora_describe(${program} zsh _${program} ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions ${component})
  velmora_describe(${program} fish ${program}.fish ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d ${component})
endforeach()

if(VELMORA_TOOLKIT)
  # The servers have one configuration file.
  velmora_describe(velmorad ini Velmora.ini ${CMAKE_INSTALL_DATAROOTDIR}/doc/velmora-server/examples server)
endif()

if(VELMORA_MANUALS)
  if(NOT PANDOC)
    message(FATAL_ERROR "VELMORA_MANUALS needs pandoc")
  endif()
  set(document ${PROJECT_SOURCE_DIR}/docs/configuration.md)
  set(page ${manual}/Velmora.ini.5)
  add_custom_command(OUTPUT ${page}
    COMMAND ${PANDOC} -s -f gfm -t man --shift-heading-level-by=-1 -L ${CMAKE_CURRENT_LIST_DIR}/page.lua
      -V section=5 -V "footer=Velmora ${PROJECT_VERSION}" -o ${page} ${document}
    DEPENDS ${document} ${CMAKE_CURRENT_LIST_DIR}/page.lua VERBATIM)
  list(APPEND made ${page})
  install(FILES ${page} DESTINATION ${CMAKE_INSTALL_MANDIR}/man5 COMPONENT server)
endif()
add_custom_target(velmora-manuals ALL DEPENDS ${made})
add_dependencies(programs velmora-manuals)
