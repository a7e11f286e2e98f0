# Locales for tests, whatever the machine has installed: made from glibc's sources (Debian's package "locales") into
# FITTINGS_TEST_LOCALES by the target fittings-test-locales.
#
#   de_DE.UTF-8   point ","       thousands "."
#   fr_FR.UTF-8   point ","       thousands U+202F
#   fr_FR.ISO-8859-1   the same with thousands U+00A0, which is one byte there
#   he_IL.UTF-8   point "."       thousands ","       read from right to left
#   ps_AF.UTF-8   point U+066B    thousands U+066C
#
# Every fittings_test has them: ScopedLocale of scoped_locale.h sets one for a scope. Any other program finds them with
# LOCPATH=${FITTINGS_TEST_LOCALES} in its environment. glibc then no longer reads the system's archive of locales. It
# still reads the system's folder of locales, which contains C.UTF-8.
set(FITTINGS_TEST_LOCALES ${PROJECT_BINARY_DIR}/locales)
find_program(LOCALEDEF localedef REQUIRED)

# Make the locales one after the other: localedef links the files that a locale shares with an earlier one.
set(make_locales)
foreach(locale IN ITEMS de_DE.UTF-8 fr_FR.UTF-8 fr_FR.ISO-8859-1 he_IL.UTF-8 ps_AF.UTF-8)
  string(REGEX MATCH "^([^.]*)\\.(.*)$" whole ${locale})
  list(APPEND make_locales
    COMMAND ${LOCALEDEF} -i ${CMAKE_MATCH_1} -f ${CMAKE_MATCH_2} ${FITTINGS_TEST_LOCALES}/${locale})
endforeach()
add_custom_command(OUTPUT ${FITTINGS_TEST_LOCALES}/stamp
  COMMAND ${CMAKE_COMMAND} -E rm -rf ${FITTINGS_TEST_LOCALES}
  COMMAND ${CMAKE_COMMAND} -E make_directory ${FITTINGS_TEST_LOCALES}
  ${make_locales}
  COMMAND ${CMAKE_COMMAND} -E touch ${FITTINGS_TEST_LOCALES}/stamp
  DEPENDS ${CMAKE_CURRENT_LIST_FILE}
  COMMENT "Making the locales of the tests" VERBATIM)
add_custom_target(fittings-test-locales DEPENDS ${FITTINGS_TEST_LOCALES}/stamp)
