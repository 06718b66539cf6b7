# The Debian packages that `cpack -G DEB` makes, one a component. FinishDebianPackages.cmake adds what
# can only be known of the files that are packed: the libraries they need and the symbols they have.
set(library_package "liborreryui${PROJECT_VERSION_MAJOR}")
set(same_release "${library_package} (= ${PROJECT_VERSION})")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME orreryui)
set(CPACK_PACKAGE_VENDOR "ORRERYUI maintainers")
set(CPACK_PACKAGE_CONTACT "${CPACK_PACKAGE_VENDOR} <maintainers@orreryui.invalid>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ
                                                GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SOURCE orreryui)
set(CPACK_PRE_BUILD_SCRIPTS "${CMAKE_CURRENT_SOURCE_DIR}/FinishDebianPackages.cmake")

# orrery_debian_package(COMPONENT NAME SECTION SUMMARY DESCRIPTION)
function(orrery_debian_package component name section summary description)
  string(TOUPPER "${component}" key)
  set(CPACK_DEBIAN_${key}_PACKAGE_NAME "${name}" PARENT_SCOPE)
  set(CPACK_DEBIAN_${key}_PACKAGE_SECTION "${section}" PARENT_SCOPE)
  set(CPACK_DEBIAN_${key}_DESCRIPTION "${summary}\n${description}" PARENT_SCOPE)
  set(CPACK_COMPONENTS_ALL ${CPACK_COMPONENTS_ALL} ${component} PARENT_SCOPE)
  # A package has its papers in a folder of its own; an installed tree has none.
  install(FILES "${CMAKE_CURRENT_SOURCE_DIR}/copyright" "${CMAKE_CURRENT_BINARY_DIR}/changelog.gz"
          DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/${name}" COMPONENT ${component}
          EXCLUDE_FROM_ALL)
endfunction()

orrery_compress(changelog.in changelog)
set(about "The library has the dialogs of a desktop viewer of relief maps of Japan,\nin Japanese.")

orrery_debian_package(library ${library_package} libs "dialogs of a viewer of relief maps"
                      "${about} The package ${library_package}-qt has their windows.")
set(CPACK_DEBIAN_LIBRARY_PACKAGE_RECOMMENDS "${library_package}-qt (= ${PROJECT_VERSION})")

if(ORRERYUI_QT)
  orrery_debian_package(plug-in ${library_package}-qt libs
                        "dialogs of a viewer of relief maps - windows"
                        "${about} This plug-in shows them with Qt 6.")
  set(CPACK_DEBIAN_PLUG-IN_PACKAGE_DEPENDS "${same_release}")
  set(CPACK_ORRERYUI_QT "${Qt6_VERSION}") # the plug-in refuses an older one
  set(CPACK_DEBIAN_PLUG-IN_PACKAGE_RECOMMENDS "qt6-translations-l10n, fonts-noto-cjk")
endif()

orrery_debian_package(development liborreryui-dev libdevel
                      "dialogs of a viewer of relief maps - development files"
                      "${about} This is what a host is built with.")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${same_release}")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SUGGESTS "orreryui-call")
install(FILES liborreryui-dev.lintian RENAME liborreryui-dev COMPONENT development EXCLUDE_FROM_ALL
        DESTINATION "${CMAKE_INSTALL_DATADIR}/lintian/overrides")

orrery_debian_package(tool orreryui-call utils
                      "dialogs of a viewer of relief maps - command line"
                      "${about} This calls one from a shell and tells why no window shows.")
set(CPACK_DEBIAN_TOOL_PACKAGE_DEPENDS "${same_release}")
set(CPACK_DEBIAN_TOOL_PACKAGE_RECOMMENDS "${library_package}-qt (= ${PROJECT_VERSION})")

include(CPack)
