# The server with a window; its objects are a library for tools that show it at work.
velmora_library(desktop_server
  SOURCES
    desktop_about.cpp
    desktop_dialogs.cpp
    desktop_help.cpp
    desktop_server.cpp
    desktop_texts.cpp
    desktop_transfers.cpp
    desktop_tray.cpp
  LIBS velmora_server_program velmora_ui_qt velmora_qt_dialogs velmora_arguments)

add_executable(velmora velmora_main.cpp)
target_link_libraries(velmora PRIVATE
  velmora_desktop_server velmora_server_arguments velmora_console velmora_hardening)
# Windows opens no console for it.
set_target_properties(velmora PROPERTIES WIN32_EXECUTABLE ON)
velmora_windows_resources(velmora "Velmora")
add_dependencies(programs velmora)

# Where a program that is not installed finds the ready-made texts.
foreach(language en de es fr it nl)
  configure_file(${PROJECT_SOURCE_DIR}/packaging/languages/Velmora.${language}.ini
    ${PROJECT_BINARY_DIR}/languages/Velmora.${language}.ini COPYONLY)
endforeach()
