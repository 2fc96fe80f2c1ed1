# libkestEdit, shared and static, and libkestEditDesktop, with what finds them: a CMake package and a pkg-config file.
# Every folder of the project is compiled once; the libraries are made of its objects.
find_package(Threads REQUIRED)

set(core_folders
  kestEdit_platform kestEdit_form kestEdit_persistence kestEdit_i18n kestEdit_editor kestEdit_component)
set(core_objects ${core_folders})
list(TRANSFORM core_objects REPLACE "(.+)" "$<TARGET_OBJECTS:\\1>")

# The parts that all installed libraries share.
function(public_library target export_name)
  set_target_properties(${target} PROPERTIES EXPORT_NAME ${export_name} LINKER_LANGUAGE CXX)
  target_include_directories(${target} INTERFACE
    $<BUILD_INTERFACE:${public_include_dir}> $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
  target_compile_features(${target} INTERFACE cxx_std_20)
  add_library(kestEdit::${export_name} ALIAS ${target})
endfunction()

function(shared_library target export_name)
  public_library(${target} ${export_name})
  set_target_properties(${target} PROPERTIES
    VERSION ${PROJECT_VERSION}
    SOVERSION ${PROJECT_VERSION_MAJOR}
    LINK_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/exports.map
    INSTALL_RPATH $ORIGIN)
  target_link_options(${target} PRIVATE -Wl,--version-script=${CMAKE_CURRENT_SOURCE_DIR}/exports.map -Wl,--as-needed)
endfunction()

# Paths in a pkg-config file start at the file itself, so that an installed tree can be moved.
file(RELATIVE_PATH pc_to_prefix /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
function(install_pkg_config template)
  cmake_path(GET template STEM LAST_ONLY file)
  configure_file(${template} ${file} @ONLY)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${file}
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT libkestedit-dev)
endfunction()

add_library(kestEdit SHARED ${core_objects})
shared_library(kestEdit core)
target_link_libraries(kestEdit PRIVATE Threads::Threads PkgConfig::PCRE2)

add_library(kestEdit_static STATIC ${core_objects})
public_library(kestEdit_static core_static)
set_target_properties(kestEdit_static PROPERTIES OUTPUT_NAME kestEdit)
target_link_libraries(kestEdit_static INTERFACE Threads::Threads pcre2-8)

install(TARGETS kestEdit EXPORT core
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT libkestedit1 NAMELINK_COMPONENT libkestedit-dev)
install(TARGETS kestEdit_static EXPORT core
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT libkestedit-dev)
install(EXPORT core NAMESPACE kestEdit:: FILE kestEditCore.cmake
  DESTINATION ${kestEdit_cmake_dir} COMPONENT libkestedit-dev)

install_pkg_config(kestEdit.pc.in)

if(TARGET kestEdit_desktop)
  include(DesktopLibrary.cmake)
endif()

configure_package_config_file(kestEditConfig.cmake.in kestEditConfig.cmake
  INSTALL_DESTINATION ${kestEdit_cmake_dir} PATH_VARS kestEdit_lang_dir)
write_basic_package_version_file(kestEditConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/kestEditConfig.cmake ${CMAKE_CURRENT_BINARY_DIR}/kestEditConfigVersion.cmake
  DESTINATION ${kestEdit_cmake_dir} COMPONENT libkestedit-dev)
