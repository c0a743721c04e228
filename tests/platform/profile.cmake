velmora_test(profile_tests
  SOURCES
    profile/text_profile_files_test.cpp
  LIBS velmora_profile)
