# qw_library(NAME SOURCES... [LIBS ...]): one static library per subsystem.
function(qw_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LIBS" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  target_include_directories(${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
  target_link_libraries(${name} PUBLIC ${ARG_LIBS})
endfunction()

# qw_test(NAME SOURCES... [LIBS ...] [FIXTURES ...] [ENV ...] [LABELS ...])
# A Qt Test executable run offscreen. FIXTURES names CTest fixtures the test
# needs (e.g. "cups" for the shared sandbox scheduler).
function(qw_test name)
  cmake_parse_arguments(ARG "" "TIMEOUT" "SOURCES;LIBS;FIXTURES;ENV;LABELS;RESOURCE_LOCK" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE Qt6::Test qw_testsupport ${ARG_LIBS})
  add_test(NAME ${name} COMMAND ${name})
  # libcups keeps the destination list in CUPS_SERVERROOT (root) or in
  # $HOME/.cups, and queuewiz writes its request logs: tests keep all of it
  # in the build tree, away from the user's and the system's files.
  set(env "QT_QPA_PLATFORM=offscreen" "QW_SOURCE_DIR=${PROJECT_SOURCE_DIR}"
          "QW_BINARY_DIR=${PROJECT_BINARY_DIR}"
          "CUPS_SERVERROOT=${PROJECT_BINARY_DIR}/cups-sandbox/client"
          "HOME=${PROJECT_BINARY_DIR}/test-home"
          "QUEUEWIZ_LOG_DIR=${PROJECT_BINARY_DIR}/test-logs" ${ARG_ENV})
  set_tests_properties(${name} PROPERTIES ENVIRONMENT "${env}")
  if(ARG_FIXTURES)
    set_tests_properties(${name} PROPERTIES FIXTURES_REQUIRED "${ARG_FIXTURES}")
  endif()
  if(ARG_RESOURCE_LOCK)
    set_tests_properties(${name} PROPERTIES RESOURCE_LOCK "${ARG_RESOURCE_LOCK}")
  endif()
  if(ARG_LABELS)
    set_tests_properties(${name} PROPERTIES LABELS "${ARG_LABELS}")
  endif()
  if(ARG_TIMEOUT)
    set_tests_properties(${name} PROPERTIES TIMEOUT ${ARG_TIMEOUT})
  else()
    set_tests_properties(${name} PROPERTIES TIMEOUT 300)
  endif()
endfunction()
