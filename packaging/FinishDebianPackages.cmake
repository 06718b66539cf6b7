# Run by cpack when the files of all packages are laid down and nothing is packed yet. Needs dpkg-dev.
set(workplace "${CPACK_TOPLEVEL_DIRECTORY}/finish")
file(REMOVE_RECURSE "${workplace}")
file(WRITE "${workplace}/debian/control" "")
file(WRITE "${workplace}/triggers" "activate-noawait ldconfig\n")

# The programs and libraries of a component.
function(find_binaries component found)
  file(GLOB_RECURSE files "${CPACK_TEMPORARY_DIRECTORY}/${component}/*")
  set(binaries "")
  foreach(file IN LISTS files)
    if(IS_SYMLINK "${file}")
      continue()
    endif()
    file(READ "${file}" magic LIMIT 4 HEX)
    if(magic STREQUAL "7f454c46")
      list(APPEND binaries "${file}")
    endif()
  endforeach()
  set(${found} "${binaries}" PARENT_SCOPE)
endfunction()

function(run output)
  execute_process(COMMAND ${ARGN} WORKING_DIRECTORY "${workplace}" OUTPUT_VARIABLE printed
                  OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_VARIABLE complaints RESULT_VARIABLE status)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "${ARGN}: ${status}\n${complaints}")
  endif()
  set(${output} "${printed}" PARENT_SCOPE)
endfunction()

# What is packed lies where the system looks, and needs no path of its own. Libraries of other
# packages are looked up; on the one of ours a package depends by name.
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
  find_binaries(${component} binaries)
  if(binaries)
    foreach(binary IN LISTS binaries)
      file(RPATH_REMOVE FILE "${binary}")
    endforeach()
    run(needed dpkg-shlibdeps --ignore-missing-info
        "-l${CPACK_TEMPORARY_DIRECTORY}/library${CPACK_PACKAGING_INSTALL_PREFIX}/lib"
        -O ${binaries})
    string(TOUPPER "${component}" key)
    string(REGEX REPLACE "^.*Depends=" "" needed "${needed}")
    string(REGEX REPLACE "(libqt6core[^ ]*) [(][^)]*[)]" "\\1 (>= ${CPACK_ORRERYUI_QT})" needed
                         "${needed}")
    list(APPEND CPACK_DEBIAN_${key}_PACKAGE_DEPENDS ${needed})
    list(JOIN CPACK_DEBIAN_${key}_PACKAGE_DEPENDS ", " CPACK_DEBIAN_${key}_PACKAGE_DEPENDS)
  endif()
endforeach()

# What hosts find in the library, for the packages that they are in.
set(package "${CPACK_DEBIAN_LIBRARY_PACKAGE_NAME}")
find_binaries(library binaries)
list(TRANSFORM binaries PREPEND "-e" OUTPUT_VARIABLE libraries)
run(changes dpkg-gensymbols "-p${package}" "-v${CPACK_PACKAGE_VERSION}" ${libraries}
    "-O${workplace}/symbols")
file(READ "${workplace}/symbols" symbols)
string(REGEX MATCHALL "[^\n]*[.]so[.][0-9]+ ${package}" sonames "${symbols}")
foreach(soname IN LISTS sonames)
  string(REGEX REPLACE "[.]so[.]" " " line "${soname} (>= ${CPACK_PACKAGE_VERSION})\n")
  file(APPEND "${workplace}/shlibs" "${line}")
endforeach()
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA "${workplace}/symbols" "${workplace}/shlibs"
                                               "${workplace}/triggers")
