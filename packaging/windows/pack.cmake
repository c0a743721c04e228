# Read by CPack before each kind of package is made.
if(CPACK_GENERATOR STREQUAL NSIS)
  # The same name for each version, so that a link to the newest one stays.
  set(CPACK_PACKAGE_FILE_NAME Velmora-setup)
endif()
