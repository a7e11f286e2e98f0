# The three installed components: the files that a program needs to run (fittings_runtime), those that a host needs to
# build (fittings_development), and the gallery (fittings_gallery). debian/*.install divides the files in the same way.
include(CMakePackageConfigHelpers)

if(TARGET fittings-gallery)
  file(RELATIVE_PATH to_libraries ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
  set_target_properties(fittings-gallery PROPERTIES INSTALL_RPATH $ORIGIN/${to_libraries})
  install(TARGETS fittings-gallery RUNTIME COMPONENT fittings_gallery)
  install(FILES gallery/fittings-gallery.desktop
    DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT fittings_gallery)
  install(FILES gallery/fittings-gallery.svg
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps COMPONENT fittings_gallery)
  install(FILES gallery/fittings-gallery.metainfo.xml
    DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo RENAME io.github.fittings.gallery.metainfo.xml
    COMPONENT fittings_gallery)
  install(FILES gallery/fittings-gallery.1
    DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT fittings_gallery)
endif()

if(FITTINGS_PLATFORM STREQUAL external)
  # A library that is built on a host's own platform is a part of that host. Install only the libraries, where the
  # host's programs find them. Leave out the files for linking, because only the host's build links to the library.
  install(TARGETS fittings LIBRARY COMPONENT fittings_runtime NAMELINK_SKIP)
  if(TARGET fittings-xrc)
    install(TARGETS fittings-xrc LIBRARY COMPONENT fittings_runtime NAMELINK_SKIP)
  endif()
  return()
endif()

install(TARGETS fittings fittings-platform fittings-platform-headers EXPORT fittings-targets
  LIBRARY COMPONENT fittings_runtime NAMELINK_COMPONENT fittings_development
  FILE_SET HEADERS COMPONENT fittings_development
  FILE_SET generated COMPONENT fittings_development)

# Files for CMake hosts. A host must ask for the same minor version, because until 1.0 a minor version may change the
# interface.
set(config_folder ${CMAKE_INSTALL_LIBDIR}/cmake/fittings)
install(EXPORT fittings-targets NAMESPACE fittings:: DESTINATION ${config_folder} COMPONENT fittings_development)
if(TARGET fittings-xrc)
  install(TARGETS fittings-xrc EXPORT fittings-xrc-targets
    LIBRARY COMPONENT fittings_runtime NAMELINK_COMPONENT fittings_development
    FILE_SET HEADERS COMPONENT fittings_development)
  install(EXPORT fittings-xrc-targets NAMESPACE fittings:: DESTINATION ${config_folder} COMPONENT fittings_development)
endif()
write_basic_package_version_file(${PROJECT_BINARY_DIR}/fittings-config-version.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES
  cmake/FittingsWx.cmake
  cmake/fittings-config.cmake
  ${PROJECT_BINARY_DIR}/fittings-config-version.cmake
  DESTINATION ${config_folder} COMPONENT fittings_development)

# Files for pkg-config. The toolkit installs none, so these contain the toolkit's flags.
get_target_property(pc_include_folders fittings::wx INTERFACE_INCLUDE_DIRECTORIES)
get_target_property(pc_definitions fittings::wx INTERFACE_COMPILE_DEFINITIONS)
get_target_property(pc_options fittings::wx INTERFACE_COMPILE_OPTIONS)
get_target_property(pc_wx_libs fittings::wx INTERFACE_LINK_LIBRARIES)
list(TRANSFORM pc_include_folders PREPEND -I)
list(TRANSFORM pc_definitions PREPEND -D)
list(JOIN pc_include_folders " " pc_include_folders)
list(JOIN pc_definitions " " pc_definitions)
list(JOIN pc_wx_libs " " pc_wx_libs)
set(pc_wx_cflags "${pc_include_folders} ${pc_definitions} ${pc_options}")
set(pc_folder ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
file(RELATIVE_PATH pc_libdir ${CMAKE_INSTALL_PREFIX} ${CMAKE_INSTALL_FULL_LIBDIR})
file(RELATIVE_PATH pc_includedir ${CMAKE_INSTALL_PREFIX} ${CMAKE_INSTALL_FULL_INCLUDEDIR})
file(RELATIVE_PATH pc_prefix ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
string(REGEX REPLACE "/$" "" pc_prefix ${pc_prefix})
configure_file(cmake/fittings.pc.in ${PROJECT_BINARY_DIR}/fittings.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/fittings.pc DESTINATION ${pc_folder} COMPONENT fittings_development)
if(TARGET fittings-xrc)
  get_target_property(pc_wx_xrc_libs fittings::wx-xrc INTERFACE_LINK_LIBRARIES)
  list(JOIN pc_wx_xrc_libs " " pc_wx_xrc_libs)
  configure_file(cmake/fittings-xrc.pc.in ${PROJECT_BINARY_DIR}/fittings-xrc.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/fittings-xrc.pc DESTINATION ${pc_folder} COMPONENT fittings_development)
endif()
