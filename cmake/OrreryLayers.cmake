# The layers of the house, enforced by the build.
#
# orrery_layer(NAME HEADERS ... SOURCES ... LINKS ... USES ...)
#
# A layer is a static library that sees its own headers and those of the layers it names, and no
# others: every layer owns a folder in the build tree that holds links to its headers alone, and
# that folder, not the source tree, stands on the include path. So a file that reaches sideways or
# upwards fails to compile. LINKS are the layers that its own headers include, and so whoever sees
# the layer sees them, too; USES are those that only its sources include. A layer without sources is
# an interface library and has LINKS alone. A public header loses the folder include/ from its name,
# as it does when it is installed.
function(orrery_layer name)
  cmake_parse_arguments(PARSE_ARGV 1 ARG "" "" "HEADERS;SOURCES;LINKS;USES")
  foreach(below IN LISTS ARG_LINKS ARG_USES)
    if(below MATCHES "^orrery_" AND NOT TARGET ${below})
      message(FATAL_ERROR "${name} stands before ${below}: layers are declared from the bottom up, "
                          "so that no circle arises")
    endif()
  endforeach()
  orrery_link_headers("${CMAKE_BINARY_DIR}/layers/${name}" ${ARG_HEADERS})
  if(ARG_SOURCES)
    add_library(${name} STATIC ${ARG_SOURCES})
    set(visible PUBLIC)
    target_link_libraries(${name} PRIVATE ${ARG_USES})
  else()
    add_library(${name} INTERFACE)
    set(visible INTERFACE)
  endif()
  target_include_directories(${name} ${visible} "${CMAKE_BINARY_DIR}/layers/${name}")
  target_link_libraries(${name} ${visible} orrery_options ${ARG_LINKS})
endfunction()

# Makes the folder `forest` hold links to the headers, by their paths from the root, and nothing else.
function(orrery_link_headers forest)
  set(wanted "")
  foreach(header IN LISTS ARGN)
    cmake_path(ABSOLUTE_PATH header NORMALIZE OUTPUT_VARIABLE absolute)
    cmake_path(RELATIVE_PATH absolute BASE_DIRECTORY "${PROJECT_SOURCE_DIR}" OUTPUT_VARIABLE place)
    string(REGEX REPLACE "^include/" "" place "${place}")
    list(APPEND wanted "${place}")
    get_filename_component(folder "${forest}/${place}" DIRECTORY)
    file(MAKE_DIRECTORY "${folder}")
    file(CREATE_LINK "${absolute}" "${forest}/${place}" SYMBOLIC)
  endforeach()
  file(MAKE_DIRECTORY "${forest}")
  file(GLOB_RECURSE present LIST_DIRECTORIES false RELATIVE "${forest}" "${forest}/*")
  list(REMOVE_ITEM present ${wanted})
  list(TRANSFORM present PREPEND "${forest}/")
  if(present)
    file(REMOVE ${present})
  endif()
endfunction()

# orrery_test(NAME SOURCES ... LINKS ...): a GoogleTest program, one CTest entry a test case. It can
# include everything, and reads and writes Japanese text.
function(orrery_test name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}")
  target_link_libraries(${name} PRIVATE orrery_options orrery_strings ${ARG_LINKS} GTest::gmock
                                        GTest::gtest_main)
  gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 120)
endfunction()
