# The layers of the house, enforced by the build.
#
# orrery_layer(NAME HEADERS ... SOURCES ... LINKS ...)
#
# A layer is a static library that sees its own headers and those of the layers it links, and no
# others: every layer owns a folder in the build tree that holds links to its headers alone, and
# that folder, not the source tree, stands on the include path. So a file that reaches sideways or
# upwards fails to compile. A layer without sources is an interface library. A public header loses the
# folder include/ from its name, as it does when it is installed.
function(orrery_layer name)
  cmake_parse_arguments(ARG "" "" "HEADERS;SOURCES;LINKS" ${ARGN})
  set(forest "${CMAKE_BINARY_DIR}/layers/${name}")
  foreach(header IN LISTS ARG_HEADERS)
    cmake_path(ABSOLUTE_PATH header NORMALIZE OUTPUT_VARIABLE absolute)
    cmake_path(RELATIVE_PATH absolute BASE_DIRECTORY "${PROJECT_SOURCE_DIR}" OUTPUT_VARIABLE place)
    string(REGEX REPLACE "^include/" "" place "${place}")
    get_filename_component(folder "${forest}/${place}" DIRECTORY)
    file(MAKE_DIRECTORY "${folder}")
    file(CREATE_LINK "${absolute}" "${forest}/${place}" SYMBOLIC)
  endforeach()
  file(MAKE_DIRECTORY "${forest}")
  if(ARG_SOURCES)
    add_library(${name} STATIC ${ARG_SOURCES})
    target_include_directories(${name} PUBLIC "${forest}")
    target_link_libraries(${name} PUBLIC orrery_options ${ARG_LINKS})
  else()
    add_library(${name} INTERFACE)
    target_include_directories(${name} INTERFACE "${forest}")
    target_link_libraries(${name} INTERFACE orrery_options ${ARG_LINKS})
  endif()
endfunction()

# orrery_test(NAME SOURCES ... LINKS ...): a GoogleTest program, one CTest entry a test case.
function(orrery_test name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}")
  target_link_libraries(${name} PRIVATE orrery_options ${ARG_LINKS} GTest::gmock GTest::gtest_main)
  gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 120)
endfunction()
