# Gives the targets fittings::fittings (link this one), fittings::platform, fittings::platform-headers and fittings::wx.
include(${CMAKE_CURRENT_LIST_DIR}/FittingsWx.cmake)
if(NOT TARGET fittings::wx)
  set(fittings_FOUND FALSE)
  set(fittings_NOT_FOUND_MESSAGE "wxWidgets 3.1 or later with its aui library is needed (Debian: libwxgtk3.2-dev)")
  return()
endif()
include(${CMAKE_CURRENT_LIST_DIR}/fittings-targets.cmake)
