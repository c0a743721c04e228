# Profile files: sections of "key=value" lines, read and written by the rules of the Win32 profile functions.
velmora_library(profile
  SOURCES
    profile/profile_encoding.cpp
    profile/profile_text.cpp
    profile/replace_contents.cpp
    profile/text_profile_files.cpp
  LIBS velmora_base)
if(WIN32)
  target_sources(velmora_profile PRIVATE profile/win32_profile_files.cpp)
endif()
