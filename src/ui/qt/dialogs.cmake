find_package(Qt6 REQUIRED COMPONENTS Widgets)

# The setup dialog, the protocol monitor and the folder choice.
velmora_library(qt_dialogs
  SOURCES
    c_sh_folder.cpp
    folder_dialog.cpp
    frm_debug.cpp
    frm_setup.cpp
    log_lines.cpp
    log_view.cpp
  LIBS velmora_ui velmora_serial velmora_base Qt6::Widgets)
set_target_properties(velmora_qt_dialogs PROPERTIES AUTOMOC ON)
target_compile_definitions(velmora_qt_dialogs PUBLIC QT_NO_KEYWORDS)
