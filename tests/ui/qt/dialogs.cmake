find_package(Qt6 REQUIRED COMPONENTS Widgets Test)

add_executable(qt_dialogs_test dialogs_test.cpp)
set_target_properties(qt_dialogs_test PROPERTIES
  AUTOMOC ON RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
target_include_directories(qt_dialogs_test PRIVATE ${CMAKE_SOURCE_DIR}/tests)
target_link_libraries(qt_dialogs_test PRIVATE velmora_qt_dialogs Qt6::Test)
add_test(NAME qt_dialogs_test COMMAND qt_dialogs_test)
set_tests_properties(qt_dialogs_test PROPERTIES ENVIRONMENT QT_QPA_PLATFORM=offscreen TIMEOUT 120)
set_property(GLOBAL APPEND PROPERTY VELMORA_TEST_SOURCES ${CMAKE_CURRENT_SOURCE_DIR}/dialogs_test.cpp)
