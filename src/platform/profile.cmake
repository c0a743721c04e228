# Profile files: sections of "key=value" lines, read and written by the rules of the Win32 profile functions.
set(profile_sources
  profile/profile_encoding.cpp
  profile/profile_rules.cpp
  profile/profile_text.cpp
  profile/replace_contents.cpp
  profile/text_profile_files.cpp)
set(profile_layers velmora_base)
if(WIN32)
  list(APPEND profile_sources profile/win32_profile_files.cpp)
  list(PREPEND profile_layers velmora_platform)
endif()
velmora_library(profile
  SOURCES ${profile_sources}
  LIBS ${profile_layers})
