# Defines two imported targets for the toolkit, because CMake's own finder gives only variables. fittings::wx is the
# toolkit with its aui library. fittings::wx-xrc is the toolkit with its library for XML resources. Each target exists
# only if its components of the toolkit are found. The build uses this file, and so does the installed
# fittings-config.cmake.

# fittings_import_wx(target component...): defines the imported target for these components of the toolkit, if they are
# found. This is a function and not a macro, so that it does not change the host's wxWidgets_... variables: the host may
# have set them by a search for other components.
function(fittings_import_wx target)
  if(TARGET ${target})
    return()
  endif()
  find_package(wxWidgets 3.2 QUIET COMPONENTS ${ARGN})
  if(NOT wxWidgets_FOUND)
    return()
  endif()
  # The targets are global, because a host that uses add_subdirectory() links to the library from its own folders.
  add_library(${target} INTERFACE IMPORTED GLOBAL)
  # Do not use wxWidgets_CXX_FLAGS: apart from -pthread, they only repeat the directories and definitions.
  target_include_directories(${target} SYSTEM INTERFACE ${wxWidgets_INCLUDE_DIRS})
  target_compile_definitions(${target} INTERFACE ${wxWidgets_DEFINITIONS})
  target_compile_options(${target} INTERFACE -pthread)
  target_link_directories(${target} INTERFACE ${wxWidgets_LIBRARY_DIRS})
  target_link_libraries(${target} INTERFACE ${wxWidgets_LIBRARIES})
endfunction()

fittings_import_wx(fittings::wx aui core base)
fittings_import_wx(fittings::wx-xrc xrc core base)
