add_executable(velmora-files velmora_files_main.cpp)
target_link_libraries(velmora-files PRIVATE
  velmora_flags velmora_files_tool velmora_console velmora_platform velmora_hardening)
velmora_windows_resources(velmora-files "Velmora file conversions")
add_dependencies(programs velmora-files)
