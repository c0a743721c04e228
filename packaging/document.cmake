# Makes a page that any browser opens out of one of our documents; Windows has no program for Markdown.
#   cmake -DCMARK=PROGRAM -DINPUT=FILE.md -DOUTPUT=FILE.html -DPAGES="name …" -P document.cmake
# PAGES are the documents that lie side by side, without their endings. A link to another document, or to a
# picture that does not exist, is an error: it would lead nowhere on the user's machine.

cmake_minimum_required(VERSION 3.22)
separate_arguments(PAGES)
get_filename_component(folder "${INPUT}" DIRECTORY)

# The text of the document's first line, without the mark of a heading.
function(title_of document result)
  file(STRINGS "${document}" line LIMIT_COUNT 1 ENCODING UTF-8)
  string(REGEX REPLACE "^# *" "" line "${line}")
  set(${result} "${line}" PARENT_SCOPE)
endfunction()

execute_process(
  COMMAND ${CMARK} --extension table --extension autolink --unsafe "${INPUT}"
  OUTPUT_VARIABLE body
  COMMAND_ERROR_IS_FATAL ANY)

# These would take a list apart.
string(ASCII 1 semicolon)
string(ASCII 2 open)
string(ASCII 3 close)
string(REPLACE ";" "${semicolon}" body "${body}")
string(REPLACE "[" "${open}" body "${body}")
string(REPLACE "]" "${close}" body "${body}")

# Headings get the names that links call them by.
string(REGEX MATCHALL "<h[1-6]>[^\n]*</h[1-6]>" headings "${body}")
foreach(heading IN LISTS headings)
  string(REGEX REPLACE "<[^>]*>|&[a-z]*${semicolon}" "" anchor "${heading}")
  string(TOLOWER "${anchor}" anchor)
  string(REGEX REPLACE "[^a-z0-9 -]" "" anchor "${anchor}")
  string(REPLACE " " "-" anchor "${anchor}")
  string(REGEX REPLACE "^<(h[1-6])>" "<\\1 id=\"${anchor}\">" named "${heading}")
  string(REPLACE "${heading}" "${named}" body "${body}")
endforeach()

string(REGEX MATCHALL "(href|src)=\"[^\"]*\"" references "${body}")
foreach(reference IN LISTS references)
  string(REGEX REPLACE "^[a-z]*=\"([^\"#]*).*$" "\\1" target "${reference}")
  if(target MATCHES "^(https?:|mailto:)" OR target STREQUAL "")
    continue()
  elseif(target MATCHES "^([a-z-]+)\\.md$" AND CMAKE_MATCH_1 IN_LIST PAGES)
    string(REPLACE ".md" ".html" page "${reference}")
    string(REPLACE "${reference}" "${page}" body "${body}")
  elseif(NOT target MATCHES "^images/" OR NOT EXISTS "${folder}/${target}")
    message(FATAL_ERROR "${INPUT}: ${target} is not in the package")
  endif()
endforeach()

string(REPLACE "${semicolon}" ";" body "${body}")
string(REPLACE "${open}" "[" body "${body}")
string(REPLACE "${close}" "]" body "${body}")

get_filename_component(own "${INPUT}" NAME_WE)
set(links "")
foreach(page IN LISTS PAGES)
  title_of("${folder}/${page}.md" title)
  if(page STREQUAL own)
    string(APPEND links "<b>${title}</b>\n")
  else()
    string(APPEND links "<a href=\"${page}.html\">${title}</a>\n")
  endif()
endforeach()
title_of("${INPUT}" title)

file(CONFIGURE OUTPUT "${OUTPUT}" @ONLY NEWLINE_STYLE DOS CONTENT [[<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width">
<title>@title@ - Velmora</title>
<style>
body { max-width: 50em; margin: 2em auto; padding: 0 1em; font: 11pt/1.5 "Segoe UI", sans-serif; color: #222; }
nav { border-bottom: 1px solid #bcd; padding-bottom: .7em; }
nav > * { margin-right: 1em; white-space: nowrap; }
a { color: #2b7a9b; }
h1, h2 { color: #2b7a9b; font-weight: 600; }
img { max-width: 100%; }
table { border-collapse: collapse; }
th, td { border: 1px solid #bcd; padding: .3em .6em; text-align: left; vertical-align: top; }
th { background: #eef4f7; }
code { background: #f0f3f5; padding: 0 .2em; }
pre { background: #f0f3f5; padding: .7em; overflow-x: auto; }
pre code { padding: 0; }
@media (prefers-color-scheme: dark) {
  body { background: #1e2124; color: #ddd; }
  a, h1, h2 { color: #7ec8e3; }
  th, code, pre { background: #2c3136; }
  th, td, nav { border-color: #4a5560; }
}
</style>
</head>
<body>
<nav>
@links@</nav>
@body@</body>
</html>
]])
