# Run by CPack over the installed files of the packages before they are made: manual pages and changelogs are kept
# compressed, as Debian wants them.
file(GLOB_RECURSE texts ${CPACK_TEMPORARY_DIRECTORY}/*)
list(FILTER texts INCLUDE REGEX "/share/(man/man[1-9]/[^/]*[1-9]|doc/[^/]*/changelog)$")
foreach(text IN LISTS texts)
  execute_process(COMMAND gzip --best --no-name ${text} COMMAND_ERROR_IS_FATAL ANY)
endforeach()
