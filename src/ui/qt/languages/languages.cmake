# The translations of the windows, as resources of the program. scripts/translate.sh keeps their sources up to date.
set(languages de es fr it nl)
set(made ${CMAKE_CURRENT_BINARY_DIR}/generated)
set(compiled "")
set(entries "")
foreach(language ${languages})
  set(source ${CMAKE_CURRENT_LIST_DIR}/velmora_${language}.ts)
  set(output ${made}/velmora_${language}.qm)
  add_custom_command(OUTPUT ${output}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${made}
    COMMAND ${VELMORA_LRELEASE} -silent ${source} -qm ${output}
    DEPENDS ${source}
    VERBATIM)
  list(APPEND compiled ${output})
  string(APPEND entries "    <file>velmora_${language}.qm</file>\n")
endforeach()
file(CONFIGURE OUTPUT ${made}/languages.qrc @ONLY
  CONTENT "<RCC>\n  <qresource prefix=\"/languages\">\n@entries@  </qresource>\n</RCC>\n")
# Not with AUTORCC, which would look for the files before they are made. The toolkit for Windows has no zstd.
add_custom_command(OUTPUT ${made}/languages.cpp
  COMMAND Qt6::rcc --format-version 1 --no-zstd --name languages -o ${made}/languages.cpp ${made}/languages.qrc
  DEPENDS ${compiled} ${made}/languages.qrc
  VERBATIM)
# Alone, so that the linter, which reads files of several sources whole, does not read this one.
set_source_files_properties(${made}/languages.cpp PROPERTIES SKIP_AUTOGEN ON SKIP_UNITY_BUILD_INCLUSION ON)
target_sources(velmora_ui_qt PRIVATE ${made}/languages.cpp)
target_compile_definitions(velmora_ui_qt PRIVATE VELMORA_TRANSLATIONS)
