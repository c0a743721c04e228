velmora_bench(spreadsheet_bench
  SOURCES spreadsheet_bench.cpp
  LIBS velmora_spreadsheet)
