# PLAN, apart from the other services because it alone needs the spreadsheet.
velmora_library(plan
  SOURCES
    plan_cells.cpp
    plan_menu.cpp
    plan_service.cpp
  LIBS velmora_services velmora_spreadsheet)
