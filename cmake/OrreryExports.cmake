# orrery_exports(TARGET LIST)
#
# The shared library TARGET exports the symbols that the file LIST names, one a line, and no others.
# A name in the list that nothing defines is an error of the linker.
function(orrery_exports target list)
  cmake_path(ABSOLUTE_PATH list)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${list}")
  file(STRINGS "${list}" names)
  list(JOIN names "; " globals)
  set(map "${CMAKE_CURRENT_BINARY_DIR}/${target}.map")
  file(CONFIGURE OUTPUT "${map}" CONTENT "{ global: @globals@; local: *; };\n" @ONLY)
  list(TRANSFORM names PREPEND "LINKER:--require-defined=" OUTPUT_VARIABLE required)
  target_link_options(${target} PRIVATE "LINKER:--version-script=${map}" ${required})
  set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS "${map}")
endfunction()
