velmora_test(plan_tests
  SOURCES
    many_sheets_test.cpp
    plan_cells_test.cpp
    plan_menu_test.cpp
    plan_service_test.cpp
  LIBS velmora_plan)
