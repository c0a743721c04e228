# The server without a window.
add_executable(velmorad velmorad_main.cpp headless_server.cpp printed_configuration.cpp)
if(WIN32)
  target_sources(velmorad PRIVATE logon_task_win32.cpp)
  # GetUserNameEx.
  target_link_libraries(velmorad PRIVATE secur32)
endif()
target_link_libraries(velmorad PRIVATE
  velmora_server_program velmora_server_arguments velmora_console velmora_hardening)
target_compile_definitions(velmorad PRIVATE QT_NO_KEYWORDS)
velmora_windows_resources(velmorad "Velmora server without a window")
add_dependencies(programs velmorad)
