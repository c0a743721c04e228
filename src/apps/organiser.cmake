# The virtual Organiser; its line is a terminal device.
if(UNIX)
  add_executable(velmora-organiser velmora_organiser_main.cpp)
  target_link_libraries(velmora-organiser PRIVATE velmora_organiser)
endif()
