# Libraries that are headers only.

# velmora_header_library(TARGET PACKAGE IMPORTED HEADER)
# TARGET is a target to link, made of the IMPORTED target of a PACKAGE. In a cross-build HEADER says where this
# machine's headers are; the folder that they lie in has the headers of its system too, and only theirs are shown.
function(velmora_header_library target package imported header)
  add_library(${target} INTERFACE)
  if(CMAKE_CROSSCOMPILING)
    find_path(${target}_HEADERS ${header} PATHS /usr/include REQUIRED NO_CMAKE_FIND_ROOT_PATH)
    get_filename_component(name ${header} DIRECTORY)
    set(folder ${CMAKE_BINARY_DIR}/headers/${target})
    file(MAKE_DIRECTORY ${folder})
    file(CREATE_LINK ${${target}_HEADERS}/${name} ${folder}/${name} SYMBOLIC)
    target_include_directories(${target} SYSTEM INTERFACE ${folder})
  else()
    find_package(${package} REQUIRED)
    target_link_libraries(${target} INTERFACE ${imported})
  endif()
endfunction()

# Reads the command lines.
velmora_header_library(velmora_cli11 CLI11 CLI11::CLI11 CLI/CLI.hpp)
# JSON for Modern C++, which writes what other programs read.
velmora_header_library(velmora_json nlohmann_json nlohmann_json::nlohmann_json nlohmann/json.hpp)
