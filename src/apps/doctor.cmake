# What finds out why a line does not work.
add_executable(velmora-doctor velmora_doctor_main.cpp configured_rate.cpp)
target_link_libraries(velmora-doctor PRIVATE
  velmora_flags velmora_doctor velmora_startup velmora_ui velmora_console velmora_platform velmora_hardening)
velmora_windows_resources(velmora-doctor "Velmora cable doctor")
add_dependencies(programs velmora-doctor)
