# JSON for Modern C++, which writes what other programs read: headers only. velmora_json is a target to link.
add_library(velmora_json INTERFACE)
if(CMAKE_CROSSCOMPILING)
  # They are this machine's; the folder that they lie in has the headers of its system too.
  find_path(VELMORA_JSON_HEADERS nlohmann/json.hpp PATHS /usr/include REQUIRED NO_CMAKE_FIND_ROOT_PATH)
  set(folder ${CMAKE_BINARY_DIR}/json)
  file(MAKE_DIRECTORY ${folder})
  file(CREATE_LINK ${VELMORA_JSON_HEADERS}/nlohmann ${folder}/nlohmann SYMBOLIC)
  target_include_directories(velmora_json SYSTEM INTERFACE ${folder})
else()
  find_package(nlohmann_json REQUIRED)
  target_link_libraries(velmora_json INTERFACE nlohmann_json::nlohmann_json)
endif()
