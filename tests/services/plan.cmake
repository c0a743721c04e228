velmora_test(plan_tests
  SOURCES
    plan_cells_test.cpp
    plan_menu_test.cpp
    plan_service_test.cpp
  LIBS velmora_plan)
