# The virtual Organiser.
add_executable(velmora-organiser velmora_organiser_main.cpp)
target_link_libraries(velmora-organiser PRIVATE
  velmora_organiser velmora_console velmora_platform velmora_hardening)
velmora_windows_resources(velmora-organiser "Velmora virtual Organiser")
add_dependencies(programs velmora-organiser)
