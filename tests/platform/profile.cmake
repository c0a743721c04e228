set(profile_tests
  profile/profile_files_contract_test.cpp
  profile/profile_rules_test.cpp
  profile/replace_contents_test.cpp
  profile/text_profile_files_test.cpp)
if(WIN32)
  list(APPEND profile_tests profile/win32_profile_files_test.cpp)
else()
  list(APPEND profile_tests profile/linked_profile_test.cpp)
endif()
velmora_test(profile_tests
  SOURCES ${profile_tests}
  LIBS velmora_profile velmora_platform)
