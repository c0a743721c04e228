# What makes our programs Windows programs. On other systems the functions do nothing.

# velmora_windows_resources(target description)
# Gives the program `target` its icon, its version and its manifest. `description` is what the Task Manager and
# the properties of the file show.
function(velmora_windows_resources target description)
  if(NOT WIN32)
    return()
  endif()
  set(folder ${PROJECT_SOURCE_DIR}/packaging/windows)
  set(VELMORA_PROGRAM ${target})
  set(VELMORA_DESCRIPTION ${description})
  set(VELMORA_ORIGINAL_FILENAME ${target}.exe)
  set(VELMORA_VERSION_DOTS ${PROJECT_VERSION}.0)
  string(REPLACE "." "," VELMORA_VERSION_COMMAS ${VELMORA_VERSION_DOTS})
  file(STRINGS ${PROJECT_SOURCE_DIR}/LICENSE VELMORA_COPYRIGHT REGEX "^Copyright" LIMIT_COUNT 1)
  set(VELMORA_ICON ${folder}/velmora.ico)
  set(VELMORA_MANIFEST ${CMAKE_CURRENT_BINARY_DIR}/${target}.manifest)
  set(script ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc)
  configure_file(${folder}/program.manifest.in ${VELMORA_MANIFEST} @ONLY)
  configure_file(${folder}/program.rc.in ${script} @ONLY)
  set_source_files_properties(${script} PROPERTIES OBJECT_DEPENDS "${VELMORA_ICON};${VELMORA_MANIFEST}")
  # A library of its own, for the resource compiler does not know the C++ compiler's options.
  add_library(${target}-resources OBJECT ${script})
  target_sources(${target} PRIVATE $<TARGET_OBJECTS:${target}-resources>)
endfunction()
