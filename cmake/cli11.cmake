# CLI11, which reads the command lines: headers only. velmora_cli11 is a target to link.
add_library(velmora_cli11 INTERFACE)
if(CMAKE_CROSSCOMPILING)
  # They are this machine's; the folder that they lie in has the headers of its system too.
  find_path(VELMORA_CLI11_HEADERS CLI/CLI.hpp PATHS /usr/include REQUIRED NO_CMAKE_FIND_ROOT_PATH)
  set(folder ${CMAKE_BINARY_DIR}/cli11)
  file(MAKE_DIRECTORY ${folder})
  file(CREATE_LINK ${VELMORA_CLI11_HEADERS}/CLI ${folder}/CLI SYMBOLIC)
  target_include_directories(velmora_cli11 SYSTEM INTERFACE ${folder})
else()
  find_package(CLI11 REQUIRED)
  target_link_libraries(velmora_cli11 INTERFACE CLI11::CLI11)
endif()
