# Debian packages by CPack, one for each component that `install` names. scripts/package.sh builds and checks them.
set(kestEdit_packages kestedit kestedit-data libkestedit1 libkestedit-dev)
if(TARGET kestEditDesktop)
  list(APPEND kestEdit_packages libkesteditdesktop1)
endif()

# What every package has to bring along; a plain `cmake --install` leaves it out.
foreach(package IN LISTS kestEdit_packages)
  set(documents ${CMAKE_INSTALL_DATADIR}/doc/${package})
  install(FILES copyright DESTINATION ${documents} COMPONENT ${package} EXCLUDE_FROM_ALL)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/changelog.gz DESTINATION ${documents} COMPONENT ${package} EXCLUDE_FROM_ALL)
endforeach()
install(FILES ${PROJECT_SOURCE_DIR}/docs/embedding.md ${PROJECT_SOURCE_DIR}/docs/job-file.md ${PROJECT_SOURCE_DIR}/docs/script.md
  DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/libkestedit-dev COMPONENT libkestedit-dev EXCLUDE_FROM_ALL)
# The sources alone, not what a build or a run of an example has left beside them.
file(GLOB examples CONFIGURE_DEPENDS RELATIVE ${PROJECT_SOURCE_DIR}
  ${PROJECT_SOURCE_DIR}/examples/*/CMakeLists.txt ${PROJECT_SOURCE_DIR}/examples/*/*.c
  ${PROJECT_SOURCE_DIR}/examples/*/*.cpp ${PROJECT_SOURCE_DIR}/examples/*/*.h ${PROJECT_SOURCE_DIR}/examples/*/*.py)
foreach(example IN LISTS examples)
  cmake_path(GET example PARENT_PATH folder)
  install(FILES ${PROJECT_SOURCE_DIR}/${example}
    DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/libkestedit-dev/${folder} COMPONENT libkestedit-dev EXCLUDE_FROM_ALL)
endforeach()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME kestedit)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "kestEdit maintainers <maintainers@kestedit.example>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_COMPONENTS_ALL ${kestEdit_packages})
set(CPACK_COMPONENTS_GROUPING IGNORE)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SOURCE kestedit)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_CURRENT_BINARY_DIR})
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(same "(= ${PROJECT_VERSION})")

# Section, packages of the same build that it needs, synopsis, and what it has.
function(debian_package package section depends synopsis description)
  string(TOUPPER ${package} name)
  list(TRANSFORM depends APPEND " ${same}")
  list(JOIN depends ", " depends)
  set(CPACK_DEBIAN_${name}_PACKAGE_NAME ${package} PARENT_SCOPE)
  set(CPACK_DEBIAN_${name}_PACKAGE_SECTION ${section} PARENT_SCOPE)
  set(CPACK_DEBIAN_${name}_PACKAGE_DEPENDS "${depends}" PARENT_SCOPE)
  set(CPACK_DEBIAN_${name}_DESCRIPTION "${synopsis}\n${about}\n\n${description}" PARENT_SCOPE)
endfunction()

set(about "A job says which files to take from a folder, what to do with them
and when. kestEdit shows, checks and stores jobs; another program
runs them.")

debian_package(kestedit utils kestedit-data
  "editor for the jobs of a file-transfer automation"
  "This package has the program, with a window and with scripts in
place of one.")
debian_package(kestedit-data utils ""
  "texts, manual and icons of the job editor kestEdit"
  "This package has the language files and the manual, for the program
and for hosts of the component.")
debian_package(libkestedit1 libs ""
  "editor for the jobs of a file-transfer automation, as a component"
  "This package has the component that host programs load, without its
window.")
debian_package(libkesteditdesktop1 libs libkestedit1
  "window of the component kestEdit"
  "This package has the component's window, for hosts with a desktop.")
set(libraries ${kestEdit_packages})
list(FILTER libraries INCLUDE REGEX "1$")
debian_package(libkestedit-dev libdevel "${libraries};kestedit-data"
  "development files of the component kestEdit"
  "This package has what it takes to build a host in C++ or C: headers,
libraries, examples.")

set(CPACK_DEBIAN_KESTEDIT-DATA_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_KESTEDIT-DATA_PACKAGE_SHLIBDEPS OFF)
set(CPACK_DEBIAN_LIBKESTEDIT1_PACKAGE_RECOMMENDS kestedit-data)
# The toolkit loads its reader of SVG pictures by itself, so nothing links to it.
foreach(name KESTEDIT LIBKESTEDITDESKTOP1)
  if(TARGET kestEditDesktop)
    string(APPEND CPACK_DEBIAN_${name}_PACKAGE_DEPENDS ", libqt6svg6")
  endif()
endforeach()
# The archive brings no library along.
string(APPEND CPACK_DEBIAN_LIBKESTEDIT-DEV_PACKAGE_DEPENDS ", libpcre2-dev")
# CPack writes scripts that run ldconfig; the trigger is what Debian wants.
foreach(package IN LISTS libraries)
  string(TOUPPER ${package} name)
  set(CPACK_DEBIAN_${name}_PACKAGE_CONTROL_EXTRA ${CMAKE_CURRENT_SOURCE_DIR}/triggers)
endforeach()

include(CPack)
