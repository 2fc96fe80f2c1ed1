# libkestEditDesktop: the window, for hosts that want it. Its headers need no toolkit.
find_package(Qt6 REQUIRED COMPONENTS Widgets Svg)

install_public_header(desktop/DesktopFrontEnd.h libkestedit-dev)
install_public_header(desktop/kestEditDesktop.h libkestedit-dev)

add_library(kestEditDesktop SHARED $<TARGET_OBJECTS:kestEdit_desktop>)
shared_library(kestEditDesktop desktop)
target_link_libraries(kestEditDesktop PUBLIC kestEdit PRIVATE Qt6::Widgets Qt6::Svg)
target_link_options(kestEditDesktop PRIVATE -Wl,--no-undefined)

install(TARGETS kestEditDesktop EXPORT desktop
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT libkesteditdesktop1 NAMELINK_COMPONENT libkestedit-dev)
install(EXPORT desktop NAMESPACE kestEdit:: FILE kestEditDesktop.cmake
  DESTINATION ${kestEdit_cmake_dir} COMPONENT libkestedit-dev)

install_pkg_config(kestEditDesktop.pc.in)
