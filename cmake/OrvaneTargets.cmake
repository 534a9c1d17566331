# What every target of the project shares: warnings as errors.
add_library(orvane_common INTERFACE)
target_compile_options(orvane_common INTERFACE -Wall -Wextra -Werror)
target_compile_definitions(orvane_common INTERFACE
  QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_USE_QSTRINGBUILDER)

# orvane_share_headers(<target> <scope> <folder>): lets the target, or whoever links it, include "<folder>/...". The
# include path has a link to that folder alone, so an include of a folder that is not linked finds nothing.
function(orvane_share_headers target scope folder)
  set(path ${PROJECT_BINARY_DIR}/include/${target})
  get_filename_component(parent ${path}/${folder} DIRECTORY)
  file(MAKE_DIRECTORY ${parent})
  file(CREATE_LINK ${PROJECT_SOURCE_DIR}/${folder} ${path}/${folder} SYMBOLIC)
  target_include_directories(${target} ${scope} ${path})
endfunction()

# orvane_add_folder(<folder> [IN parent] SOURCES ... LINKS ... [HIDES ...]): the static library of one folder. Whoever
# links it may include its headers and those of LINKS; what HIDES names serves its own sources alone.
function(orvane_add_folder folder)
  cmake_parse_arguments(ARG "" "IN" "SOURCES;LINKS;HIDES" ${ARGN})
  add_library(orvane_${folder} STATIC ${ARG_SOURCES})
  if(ARG_IN)
    orvane_share_headers(orvane_${folder} PUBLIC ${ARG_IN}/${folder})
  else()
    orvane_share_headers(orvane_${folder} PUBLIC ${folder})
  endif()
  target_link_libraries(orvane_${folder} PUBLIC orvane_common ${ARG_LINKS} PRIVATE ${ARG_HIDES})
endfunction()

# orvane_add_test(<name> SOURCES ... LINKS ... [TIMEOUT seconds] [SCREENS WxH...]): a QtTest program that ctest runs on a
# display, a home folder and a temporary folder of its own, with the test devices for its cameras.
function(orvane_add_test name)
  cmake_parse_arguments(ARG "" "TIMEOUT" "SOURCES;LINKS;SCREENS" ${ARGN})
  if(NOT ARG_TIMEOUT)
    set(ARG_TIMEOUT 120)
  endif()
  if(CMAKE_CXX_FLAGS MATCHES "sanitize=thread") # which takes ten times as long
    math(EXPR ARG_TIMEOUT "${ARG_TIMEOUT} * 10")
  endif()
  add_executable(${name} ${ARG_SOURCES})
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/tests)
  target_link_libraries(${name} PRIVATE orvane_testheaders ${ARG_LINKS} Qt5::Test)
  set(run ${PROJECT_SOURCE_DIR}/tests/support/on-own-display)
  set(program ${PROJECT_BINARY_DIR} $<TARGET_FILE:${name}>)
  if(NOT ARG_SCREENS)
    add_test(NAME ${name} COMMAND ${run} ${program})
    set(tests ${name})
  endif()
  foreach(screen ${ARG_SCREENS})
    add_test(NAME ${name}_${screen} COMMAND ${run} --screen ${screen} ${program})
    list(APPEND tests ${name}_${screen})
  endforeach()
  # Those that may take longest come first.
  set_tests_properties(${tests} PROPERTIES TIMEOUT ${ARG_TIMEOUT} COST ${ARG_TIMEOUT})
endfunction()
