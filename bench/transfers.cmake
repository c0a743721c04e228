velmora_bench(transfer_bench SOURCES transfer_bench.cpp LIBS velmora_qt_dialogs velmora_transfers velmora_ui)
target_include_directories(transfer_bench PRIVATE ${CMAKE_SOURCE_DIR}/tests)
