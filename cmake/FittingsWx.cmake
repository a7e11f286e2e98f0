# The toolkit as one imported target, fittings::wx: CMake's own finder gives variables only.
# Used by the build and, installed, by fittings-config.cmake.
if(NOT TARGET fittings::wx)
  find_package(wxWidgets 3.1 REQUIRED COMPONENTS aui core base)
  add_library(fittings::wx INTERFACE IMPORTED)
  # The finder repeats -pthread among the flags; the directories and definitions say the rest.
  target_include_directories(fittings::wx SYSTEM INTERFACE ${wxWidgets_INCLUDE_DIRS})
  target_compile_definitions(fittings::wx INTERFACE ${wxWidgets_DEFINITIONS})
  target_compile_options(fittings::wx INTERFACE -pthread)
  target_link_directories(fittings::wx INTERFACE ${wxWidgets_LIBRARY_DIRS})
  target_link_libraries(fittings::wx INTERFACE ${wxWidgets_LIBRARIES})
endif()
