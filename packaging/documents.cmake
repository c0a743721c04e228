# The documents as web pages, which a double click opens on any system; made with the rest of the project.

# velmora_pages(RESULT PAGE …): makes pages of documents of docs, which are named without their ending. They may link to
# each other only. RESULT is the list of the files.
function(velmora_pages result)
  find_program(VELMORA_CMARK cmark-gfm REQUIRED)
  list(JOIN ARGN " " names)
  set(made "")
  foreach(page ${ARGN})
    set(input ${PROJECT_SOURCE_DIR}/docs/${page}.md)
    set(output ${PROJECT_BINARY_DIR}/documents/${page}.html)
    add_custom_command(OUTPUT ${output}
      COMMAND ${CMAKE_COMMAND} -DCMARK=${VELMORA_CMARK} -DINPUT=${input} -DOUTPUT=${output} "-DPAGES=${names}"
        -P ${PROJECT_SOURCE_DIR}/packaging/document.cmake
      DEPENDS ${input} ${PROJECT_SOURCE_DIR}/packaging/document.cmake
      VERBATIM)
    list(APPEND made ${output})
  endforeach()
  add_custom_target(velmora-documents ALL DEPENDS ${made})
  set(${result} ${made} PARENT_SCOPE)
endfunction()
