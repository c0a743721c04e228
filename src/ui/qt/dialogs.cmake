# The setup dialog, the protocol monitor, the transfers, the folder choice and the icon in the tray.
velmora_library(qt_dialogs
  SOURCES
    capture_saving.cpp
    desktop_files.cpp
    device_list.cpp
    dropped_files_box.cpp
    file_drop.cpp
    frm_about.cpp
    frm_cable_check.cpp
    frm_debug.cpp
    frm_setup.cpp
    frm_transfers.cpp
    help_key.cpp
    log_lines.cpp
    log_view.cpp
    port_number_box.cpp
    readable_ground.cpp
    transfer_table.cpp
    tray_icon.cpp
  LIBS velmora_ui_qt velmora_ui velmora_serial velmora_base Qt6::Widgets)
if(WIN32)
  target_sources(velmora_qt_dialogs PRIVATE native_folder_browser_win32.cpp)
  target_link_libraries(velmora_qt_dialogs PUBLIC velmora_win32_folder_browser)
else()
  target_sources(velmora_qt_dialogs PRIVATE
    c_sh_folder.cpp desktop_folder_browser.cpp folder_dialog.cpp native_folder_browser_qt.cpp)
endif()
set_target_properties(velmora_qt_dialogs PROPERTIES AUTOMOC ON)
target_compile_definitions(velmora_qt_dialogs PUBLIC QT_NO_KEYWORDS)
