# What every target of the project shares: warnings as errors, includes written from the project's root.
add_library(orvane_common INTERFACE)
target_compile_options(orvane_common INTERFACE -Wall -Wextra -Werror)
target_compile_definitions(orvane_common INTERFACE
  QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_USE_QSTRINGBUILDER)
target_include_directories(orvane_common INTERFACE ${PROJECT_SOURCE_DIR})

# orvane_add_folder(<folder> SOURCES ... LINKS ...): the static library of one folder.
function(orvane_add_folder folder)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_library(orvane_${folder} STATIC ${ARG_SOURCES})
  target_link_libraries(orvane_${folder} PUBLIC orvane_common ${ARG_LINKS})
endfunction()

# orvane_add_test(<name> SOURCES ... LINKS ... [TIMEOUT seconds] [SCREEN WxH]): a QtTest program that ctest runs on a
# display, a home folder and a temporary folder of its own, with the test devices for its cameras.
function(orvane_add_test name)
  cmake_parse_arguments(ARG "" "TIMEOUT;SCREEN" "SOURCES;LINKS" ${ARGN})
  if(NOT ARG_TIMEOUT)
    set(ARG_TIMEOUT 120)
  endif()
  if(NOT ARG_SCREEN)
    set(ARG_SCREEN 1024x768)
  endif()
  add_executable(${name} ${ARG_SOURCES})
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/tests)
  target_link_libraries(${name} PRIVATE ${ARG_LINKS} Qt5::Test)
  add_test(NAME ${name} COMMAND ${PROJECT_SOURCE_DIR}/tests/support/on-own-display --screen ${ARG_SCREEN}
    ${PROJECT_BINARY_DIR} $<TARGET_FILE:${name}>)
  set_tests_properties(${name} PROPERTIES TIMEOUT ${ARG_TIMEOUT})
endfunction()
