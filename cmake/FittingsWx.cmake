# The toolkit as one imported target, fittings::wx: CMake's own finder gives variables only. No target when the toolkit
# is not found. Used by the build and, installed, by fittings-config.cmake.

# A function, so that the wxWidgets_... variables of a host that found other components stay as they are.
function(fittings_import_wx)
  find_package(wxWidgets 3.1 QUIET COMPONENTS aui core base)
  if(NOT wxWidgets_FOUND)
    return()
  endif()
  # Global: a host that adds this library by add_subdirectory() links to it from its own folders.
  add_library(fittings::wx INTERFACE IMPORTED GLOBAL)
  # The finder repeats -pthread among the flags; the directories and definitions say the rest.
  target_include_directories(fittings::wx SYSTEM INTERFACE ${wxWidgets_INCLUDE_DIRS})
  target_compile_definitions(fittings::wx INTERFACE ${wxWidgets_DEFINITIONS})
  target_compile_options(fittings::wx INTERFACE -pthread)
  target_link_directories(fittings::wx INTERFACE ${wxWidgets_LIBRARY_DIRS})
  target_link_libraries(fittings::wx INTERFACE ${wxWidgets_LIBRARIES})
endfunction()

if(NOT TARGET fittings::wx)
  fittings_import_wx()
endif()
