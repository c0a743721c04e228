# Flags that every target of the project is compiled with.
add_library(velmora_flags INTERFACE)
target_link_libraries(velmora_flags INTERFACE velmora_counts)
target_include_directories(velmora_flags INTERFACE ${CMAKE_SOURCE_DIR}/src)
target_compile_options(velmora_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wcast-qual -Wnon-virtual-dtor -Woverloaded-virtual
  -Wunused -Wnull-dereference -Wformat=2
  $<$<BOOL:${VELMORA_WERROR}>:-Werror>)
if(MINGW)
  # A program is one file that needs no other beside it; the compiler's own libraries are in it.
  target_link_options(velmora_flags INTERFACE -static)
  # Windows 10 and later.
  target_compile_definitions(velmora_flags INTERFACE _WIN32_WINNT=0x0A00 WIN32_LEAN_AND_MEAN NOMINMAX)
endif()
if(VELMORA_SANITIZE)
  target_compile_options(velmora_flags INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_link_options(velmora_flags INTERFACE -fsanitize=address,undefined)
endif()
if(VELMORA_FUZZ)
  target_compile_options(velmora_flags INTERFACE
    -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=undefined
    -fsanitize-coverage-ignorelist=${CMAKE_SOURCE_DIR}/fuzz/uncounted.txt)
  target_link_options(velmora_flags INTERFACE -fsanitize=address,undefined)
endif()

# velmora_library(NAME SOURCES a.cpp … [LIBS other …])
# One layer of the program as a static library called velmora_NAME. LIBS name the layers below it:
# what is not listed does not link, so the order of the layers is kept by the linker.
function(velmora_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LIBS" ${ARGN})
  add_library(velmora_${name} STATIC ${ARG_SOURCES})
  target_link_libraries(velmora_${name} PUBLIC velmora_flags ${ARG_LIBS} PRIVATE velmora_hardening velmora_coverage)
endfunction()

# velmora_test(NAME SOURCES a_test.cpp … [LIBS layer …] [LABELS label …] [TOOLKIT])
# One GoogleTest program of a folder; each test case becomes a test of its own in CTest. Where another system
# is emulated, or the sanitizers set their memory up first, the program is one test, since starting it takes
# longer than what it tests; not so those with the toolkit under the sanitizers, whose threads and signals are
# those of the whole program.
function(velmora_test name)
  cmake_parse_arguments(ARG "TOOLKIT" "" "SOURCES;LIBS;LABELS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  # The tests' own code is built often and runs briefly: the optimiser's time would be lost.
  target_compile_options(${name} PRIVATE -O0)
  target_link_libraries(${name} PRIVATE velmora_flags ${ARG_LIBS} GTest::gmock GTest::gtest_main)
  if(NOT ARG_TOOLKIT)  # it has its users compiled in another way (-fPIC)
    target_precompile_headers(${name} REUSE_FROM velmora_test_headers)
  endif()
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
  if(CMAKE_CROSSCOMPILING OR (VELMORA_SANITIZE AND NOT ARG_TOOLKIT))
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT 300 LABELS "${ARG_LABELS}")
  else()
    gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST
      PROPERTIES TIMEOUT 120 LABELS "${ARG_LABELS}")
  endif()
  foreach(source ${ARG_SOURCES})
    file(REAL_PATH ${source} path BASE_DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR})
    set_property(GLOBAL APPEND PROPERTY VELMORA_TEST_SOURCES ${path})
  endforeach()
endfunction()

# Fails the configuration when a *_test.cpp below the folder belongs to no test program. Those of the systems
# that are not built for are told by their names; a build without the desktop is not checked.
function(velmora_check_every_test_is_built folder)
  if(NOT VELMORA_DESKTOP)
    return()
  endif()
  file(GLOB_RECURSE found ${folder}/*_test.cpp)
  if(WIN32)
    set(others "/posix/|posix|pty|/e2e/|/simulation/|/xdg_|/user_dirs_|/folder_entries_|/folder_reader_|/linked_profile_|/services/saved_files_|/path_lookup_|/resolved_path_|/system_errors_|/zone_test|desktop_server_test|/qt/c_sh_folder_test|/qt/closing_test|/qt/desktop_files_|/program_queue_")
  else()
    set(others "win32")
  endif()
  list(FILTER found EXCLUDE REGEX "${others}")
  get_property(built GLOBAL PROPERTY VELMORA_TEST_SOURCES)
  list(REMOVE_ITEM found ${built})
  if(found)
    list(JOIN found "\n  " names)
    message(FATAL_ERROR "These belong to no test program:\n  ${names}")
  endif()
endfunction()
